#pragma once

#include "platform/gtk/webkit/HostCertificate.h"
#include "platform/Platform.h"

#include <optional>

namespace gtk {

class Application;
class MainLoopQueue;
class ProgramBundle;
class SettingsFile;
class WebEngine;

// The desktop on GTK and WebKitGTK. Making it is cheap: display and web engine are opened when the
// application runs, and not at all in a start that only hands something to a program that runs
// already.
class GtkPlatform final : public platform::Platform {
public:
    struct Options {
        std::string identifier; // of the application, in reverse domain order
        std::optional<std::string> address; // to be opened
    };

    explicit GtkPlatform(Options options);
    ~GtkPlatform() override;

    // Trusts a certificate for its host and no other. Why that cannot be done, when its file holds
    // none. To be called before the application runs.
    std::optional<std::string> trust(HostCertificate certificate);

    // Tells whose pages will be shown first, so that its address is looked up while the program
    // starts. To be called before the application runs.
    void expectHost(std::string host) { expectedHost_ = std::move(host); }

    platform::DispatchQueue& mainQueue() override;
    platform::UserDefaults& userDefaults() override;
    platform::Bundle& mainBundle() override;
    platform::NSApplication& application() override;
    platform::NSScreen* mainScreen() override;
    std::shared_ptr<platform::NSView> makeView() override;
    std::shared_ptr<platform::WKWebView> makeWebView(
        const platform::WKWebViewConfiguration& configuration) override;
    void log(const std::string& line) override;

    // What all web views share; made on first use.
    WebEngine& webEngine();

    // Sets the web engine going while the window has yet to be made. Returns why the program cannot
    // run; absent when it can.
    std::optional<std::string> prepare();

    // Returns when the settings are on the disk, or could not be put there.
    void saveSettings();

private:
    // In the order in which they need each other.
    std::unique_ptr<MainLoopQueue> mainQueue_;
    std::unique_ptr<SettingsFile> settings_;
    std::unique_ptr<ProgramBundle> bundle_;
    std::optional<HostCertificate> certificate_;
    std::string expectedHost_;
    std::unique_ptr<WebEngine> webEngine_;
    std::unique_ptr<Application> application_;
};

} // namespace gtk
