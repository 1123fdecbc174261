#include "platform/gtk/webkit/FrontPage.h"

namespace gtk {

void FrontPage::shown(const void* view, WebKitWebView* page, bool isReady)
{
    view_ = view;
    page_ = page;
    setReady(isReady);
}

void FrontPage::readinessChanged(const void* view, bool isReady)
{
    if (view_ == view)
        setReady(isReady);
}

void FrontPage::hidden(const void* view)
{
    if (view_ != view)
        return;
    view_ = nullptr;
    page_ = nullptr;
    setReady(false);
}

void FrontPage::setReady(bool isReady)
{
    if (isReady_ == isReady)
        return;
    isReady_ = isReady;
    signalChanged_.emit();
}

} // namespace gtk
