#include "platform/gtk/webkit/VisiblePage.h"

namespace gtk {

void VisiblePage::shown(const void* view, WebKitWebView* page, bool isReady)
{
    view_ = view;
    page_ = page;
    setReady(isReady);
}

void VisiblePage::readinessChanged(const void* view, bool isReady)
{
    if (view_ == view)
        setReady(isReady);
}

void VisiblePage::hidden(const void* view)
{
    if (view_ != view)
        return;
    view_ = nullptr;
    page_ = nullptr;
    setReady(false);
}

void VisiblePage::setReady(bool isReady)
{
    if (isReady_ == isReady)
        return;
    isReady_ = isReady;
    signalChanged_.emit();
}

} // namespace gtk
