#include "platform/gtk/desktop/AddressLauncher.h"

#include "platform/Platform.h"

#include <gdk/gdk.h>
#include <glibmm/main.h>

namespace gtk {

namespace {

constexpr std::size_t mostWaiting = 1000;
constexpr double patience = 10; // seconds; the desktop may ask the user which program to take

struct Attempt {
    std::weak_ptr<AddressLauncher> launcher;
    unsigned number;
};

// Carries the token with which the other program may come forward.
GAppLaunchContext* makeLaunchContext()
{
    auto* display = gdk_display_get_default();
    return display ? G_APP_LAUNCH_CONTEXT(gdk_display_get_app_launch_context(display)) : nullptr;
}

} // namespace

void AddressLauncher::launch(std::string address)
{
    if (waiting_.size() >= mostWaiting) {
        if (!std::exchange(hasDropped_, true))
            platform::NSLog("Too many addresses wait to be opened; further ones are dropped.");
        return;
    }
    waiting_.push_back(std::move(address));
    if (!std::exchange(isLaunching_, true))
        launchNextWhenIdle();
}

void AddressLauncher::launchNextWhenIdle()
{
    Glib::signal_idle().connect_once([weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->launchNext();
    });
}

void AddressLauncher::launchNext()
{
    if (waiting_.empty()) {
        isLaunching_ = hasDropped_ = false;
        return;
    }
    const auto address = std::move(waiting_.front());
    waiting_.pop_front();
    patience_.start(patience, [this] { goOn(); });
    g_autoptr(GAppLaunchContext) context = makeLaunchContext();
    g_app_info_launch_default_for_uri_async(address.c_str(), context, nullptr,
        &AddressLauncher::didLaunch, new Attempt{weak_from_this(), attempt_});
}

void AddressLauncher::goOn()
{
    ++attempt_;
    patience_.stop();
    launchNextWhenIdle();
}

void AddressLauncher::didLaunch(GObject*, GAsyncResult* result, gpointer data)
{
    const std::unique_ptr<Attempt> attempt(static_cast<Attempt*>(data));
    g_autoptr(GError) error = nullptr;
    const bool isLaunched = g_app_info_launch_default_for_uri_finish(result, &error);
    const auto self = attempt->launcher.lock();
    if (!self)
        return;
    if (!isLaunched)
        platform::NSLog(std::string("No program opens this address: ") + error->message);
    if (attempt->number == self->attempt_)
        self->goOn();
}

} // namespace gtk
