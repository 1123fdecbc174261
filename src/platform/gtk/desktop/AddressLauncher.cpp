#include "platform/gtk/desktop/AddressLauncher.h"

#include "platform/gtk/foundation/AsyncCallback.h"
#include "platform/Platform.h"

#include <gdk/gdk.h>
#include <glibmm/main.h>

namespace gtk {

namespace {

constexpr std::size_t mostWaiting = 1000;
constexpr double patience = 10; // seconds; the desktop may ask the user which program to take

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
    Glib::signal_idle().connect_once(lifetime_.guard([this] { launchNext(); }));
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
    const auto didLaunch =
        asyncCallback(lifetime_.guard([this, attempt = attempt_](GObject*, GAsyncResult* result) {
            g_autoptr(GError) error = nullptr;
            if (!g_app_info_launch_default_for_uri_finish(result, &error))
                platform::NSLog(std::string("No program opens this address: ") + error->message);
            if (attempt == attempt_)
                goOn();
        }));
    g_app_info_launch_default_for_uri_async(
        address.c_str(), context, nullptr, didLaunch.function, didLaunch.data);
}

void AddressLauncher::goOn()
{
    ++attempt_;
    patience_.stop();
    launchNextWhenIdle();
}

} // namespace gtk
