#include "platform/gtk/sparkle/UpdateWindow.h"

#include "platform/gtk/panels/Panel.h"
#include "platform/ui/Views.h"

namespace gtk {

UpdateWindow::UpdateWindow(ui::Binding<bool> checksAutomatically)
    : model_(std::make_shared<UpdateModel>(std::move(checksAutomatically)))
{
}

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::show(UpdatePane pane)
{
    const bool wasOpen = isOpen();
    model_->progress = UpdateProgress();
    model_->pane = std::make_shared<const UpdatePane>(std::move(pane));
    if (wasOpen)
        return;
    const auto close = [this] {
        if (const auto pane = model_->pane()) // which may go over this
            pane->onClose();
    };
    panel_ = std::make_unique<Panel>(
        Panel::Options{.title = "Software Update", .isModal = false, .onClose = close},
        UpdateView{model_});
}

void UpdateWindow::setProgress(std::optional<double> fraction, const std::string& text)
{
    model_->progress = UpdateProgress{fraction, text};
}

void UpdateWindow::bringForward()
{
    panel_->bringForward();
}

void UpdateWindow::close()
{
    model_->pane = nullptr;
    if (panel_)
        panel_->hide();
}

} // namespace gtk
