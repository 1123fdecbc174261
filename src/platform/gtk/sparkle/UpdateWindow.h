#pragma once

#include "platform/gtk/sparkle/UpdateView.h"

#include <memory>

namespace gtk {

class Panel;

// The updater's window: one pane after the other.
class UpdateWindow {
public:
    // Panes that offer automatic checks show and change `checksAutomatically`.
    explicit UpdateWindow(ui::Binding<bool> checksAutomatically);
    ~UpdateWindow();

    UpdateWindow(const UpdateWindow&) = delete;
    UpdateWindow& operator=(const UpdateWindow&) = delete;

    // Shows `pane`, in front of other windows when there was none.
    void show(UpdatePane pane);

    // Of the pane's progress bar. Without a fraction there is no telling.
    void setProgress(std::optional<double> fraction, const std::string& text = {});

    // While it is open.
    void bringForward();
    void close();
    bool isOpen() const { return model_->pane() != nullptr; }

private:
    const std::shared_ptr<UpdateModel> model_;
    std::unique_ptr<Panel> panel_; // the one shown last, hidden while there is no pane
};

} // namespace gtk
