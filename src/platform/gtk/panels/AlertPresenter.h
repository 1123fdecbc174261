#pragma once

#include "platform/appkit/NSAlert.h"

#include <deque>
#include <functional>
#include <memory>

namespace Gtk {
class MessageDialog;
}

namespace gtk {

// Shows alerts, one after the other, over the application's window.
class AlertPresenter {
public:
    AlertPresenter();
    ~AlertPresenter();

    AlertPresenter(const AlertPresenter&) = delete;
    AlertPresenter& operator=(const AlertPresenter&) = delete;

    void run(platform::NSAlert alert, std::function<void(int button)> completion);

private:
    struct Waiting {
        platform::NSAlert alert;
        std::function<void(int button)> completion;
    };

    void showFirst();
    void answered(int response);

    std::deque<Waiting> waiting_; // the first is the one on the screen
    std::shared_ptr<Gtk::MessageDialog> dialog_; // null while there is none
};

} // namespace gtk
