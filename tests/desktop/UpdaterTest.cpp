// Newer versions of the application, from the demo service's feeds to the system's installer.

#include "platform/gtk/sparkle/GtkUpdaterController.h"

#include "harness/DemoServiceProcess.h"
#include "harness/MainLoop.h"
#include "harness/ShownWindow.h"
#include "platform/appkit/NSWorkspace.h"
#include "platform/foundation/URL.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"
#include "platform/gtk/foundation/GtkUserDefaults.h"
#include "platform/gtk/GtkPlatform.h"

#include <ctime>
#include <fstream>
#include <glibmm/init.h>
#include <gtest/gtest.h>
#include <gtkmm/button.h>
#include <gtkmm/init.h>
#include <gtkmm/label.h>

namespace desktop {

namespace {

namespace files = std::filesystem;

// Notes what it would open.
struct Workspace final : platform::NSWorkspace {
    void open(const platform::URL& url) override { opened.push_back(url.path()); }
    void activateFileViewerSelecting(const std::vector<platform::URL>&) override { }

    std::vector<std::string> opened;
};

// The updater's window; null while it is not on the screen.
GtkWidget* window()
{
    return shownWindow([](GtkWidget*) { return true; });
}

// All texts of labels, and the button that is called `title`.
void read(GtkWidget* widget, std::string& texts, const std::string& title, GtkWidget*& button)
{
    if (!widget)
        return;
    if (GTK_IS_LABEL(widget))
        texts += std::string(gtk_label_get_text(GTK_LABEL(widget))) + "\n";
    if (GTK_IS_BUTTON(widget) && gtk_button_get_label(GTK_BUTTON(widget)) == title)
        button = widget;
    for (auto* child = gtk_widget_get_first_child(widget); child;
         child = gtk_widget_get_next_sibling(child))
        read(child, texts, title, button);
}

std::string texts()
{
    std::string found;
    GtkWidget* none = nullptr;
    read(window(), found, "", none);
    return found;
}

bool shows(const std::string& text)
{
    return until([&] { return texts().find(text) != std::string::npos; });
}

void press(const std::string& title)
{
    std::string ignored;
    GtkWidget* button = nullptr;
    read(window(), ignored, title, button);
    ASSERT_TRUE(button) << "no button " << title << " in\n" << texts();
    g_signal_emit_by_name(button, "clicked");
}

bool closes()
{
    return until([] { return !window(); });
}

// The user is told so, and takes note of it.
void expectMessage(const std::string& text)
{
    EXPECT_TRUE(shows(text)) << texts();
    press("OK");
    EXPECT_TRUE(closes());
}

} // namespace

class UpdaterTest : public testing::Test {
protected:
    UpdaterTest()
    {
        Glib::set_init_to_users_preferred_locale(false);
        Gtk::init_gtkmm_internals();
        gtk_init();
        std::ifstream(VELMARO_DEMO_UPDATES "/public-key.txt") >> publicKey;
        queue.endStart();
    }

    std::unique_ptr<gtk::GtkUpdaterController> makeUpdater(const std::string& feed)
    {
        const auto environment = service.clientEnvironment();
        return std::make_unique<gtk::GtkUpdaterController>(
            gtk::GtkUpdaterController::Options{
                .feed = feed,
                .publicKey = publicKey,
                .trust =
                    std::make_shared<gtk::HostTrust>(std::vector<std::string>{"velmaro.localhost"},
                        environment.at("VELMARO_SERVICE_CERTIFICATE")),
                .version = "1",
                .displayVersion = "1.0.0",
                .downloads = downloads,
                .executable = executable,
                .isSandboxed = isSandboxed,
            },
            gtk::GtkUpdaterController::Services{queue, settings, workspace});
    }

    std::string feed(const std::string& kind) const
    {
        return service.origin() + "/demo/updates/" + kind + "/appcast.xml";
    }

    bool hasPackage() const { return files::exists(downloads / "velmaro-online.deb"); }

    const files::path home = std::getenv("HOME");
    const files::path downloads = home / "updates";
    files::path executable = home / "velmaro-online";
    bool isSandboxed = false;
    std::string publicKey;
    DemoServiceProcess service{{.isHostile = true}};
    gtk::GtkPlatform platform{
        {.identifier = "example.velmaro.Test", .address = std::nullopt, .geocoder = ""}};
    gtk::GtkDispatchQueue& queue = platform.mainQueue();
    gtk::GtkUserDefaults settings{
        home / "updates.json", queue, [](const auto& line) { ADD_FAILURE() << line; }};
    Workspace workspace;
};

TEST_F(UpdaterTest, anHonestUpdateIsHandedToTheInstaller)
{
    const auto updater = makeUpdater(feed("newer"));
    ASSERT_TRUE(updater->canCheckForUpdates());
    updater->checkForUpdates();
    EXPECT_TRUE(shows("Checking for updates"));
    updater->checkForUpdates(); // comes forward, and asks no second time
    ASSERT_TRUE(shows("Version 2.0.0 is available; you have 1.0.0."));
    EXPECT_EQ(service.requests("/demo/updates/newer/appcast.xml").size(), 1u);
    press("Install");
    ASSERT_TRUE(shows("Velmaro Online 2.0.0 is ready to install"));
    ASSERT_EQ(workspace.opened.size(), 1u);
    EXPECT_EQ(workspace.opened[0], downloads / "velmaro-online.deb");
    EXPECT_TRUE(hasPackage());
    EXPECT_EQ(files::status(downloads).permissions(), files::perms::owner_all);
    press("Done");
    EXPECT_TRUE(closes());
}

TEST_F(UpdaterTest, whatCannotBeTrustedIsNeverOpened)
{
    struct Case {
        std::string kind;
        std::string text;
    };
    const Case cases[] = {
        {"tampered", "it was changed on its way, or comes from somebody else"},
        {"unsigned", "is not signed by its maker"},
        {"downgrade", "holds version 0.9.0, which is older than yours (1.0.0)"},
        {"truncated", "ended too early"},
        {"oversized", "larger than announced"},
        {"plain-http", "not secure (https)"},
    };
    for (const auto& [kind, text] : cases) {
        SCOPED_TRACE(kind);
        const auto updater = makeUpdater(feed(kind));
        updater->checkForUpdates();
        ASSERT_TRUE(shows("Version 2.0.0 is available"));
        press("Install");
        expectMessage(text);
        EXPECT_TRUE(workspace.opened.empty());
        EXPECT_FALSE(hasPackage());
    }
}

TEST_F(UpdaterTest, whoAsksIsToldWhyThereIsNoUpdate)
{
    const auto insecure = "http://velmaro.localhost:" + std::to_string(service.port());
    struct Case {
        std::string feed;
        std::string text;
    };
    const Case cases[] = {
        {feed("current"), "Velmaro Online 1.0.0 is currently the newest version available."},
        {feed("gone"), "nothing at this address (404)"},
        {service.origin() + "/online", "cannot be read"},
        {service.origin() + "/hostile/redirect?to=" + insecure + "/", "not secure (https)"},
        {"https://elsewhere.localhost:" + std::to_string(service.port()) + "/",
            "cannot be reached"},
    };
    for (const auto& [feed, text] : cases) {
        SCOPED_TRACE(feed);
        const auto updater = makeUpdater(feed);
        updater->checkForUpdates();
        expectMessage(text);
    }
}

TEST_F(UpdaterTest, aCancelledDownloadLeavesNothingBehind)
{
    const auto updater = makeUpdater(feed("stalled"));
    updater->checkForUpdates();
    ASSERT_TRUE(shows("is available"));
    press("Install");
    ASSERT_TRUE(shows("Downloading update"));
    EXPECT_TRUE(until([&] { return hasPackage(); }));
    press("Cancel");
    EXPECT_TRUE(closes());
    EXPECT_FALSE(hasPackage());
}

TEST_F(UpdaterTest, whoeverInstalledTheProgramUpdatesIt)
{
    executable = "/usr/bin/dpkg";
    const auto packaged = makeUpdater(feed("newer"));
    packaged->checkForUpdates();
    expectMessage("by your system\u2019s package manager");

    executable = home / "velmaro-online";
    isSandboxed = true;
    const auto sandboxed = makeUpdater(feed("newer"));
    sandboxed->checkForUpdates();
    EXPECT_TRUE(shows("by Flatpak")) << texts();
    EXPECT_TRUE(service.requests("/demo/updates/newer/appcast.xml").empty());
}

TEST_F(UpdaterTest, looksByItselfWhenAllowedOnceADayAndNotForASkippedVersion)
{
    using gtk::GtkUpdaterController;
    const auto asked = [&] { return service.requests("/demo/updates/newer/appcast.xml").size(); };
    auto updater = makeUpdater(feed("newer"));
    updater->start(); // the first launch: nobody is asked anything
    EXPECT_TRUE(until([&] { return settings.boolean(GtkUpdaterController::hasLaunchedKey); }));

    updater = makeUpdater(feed("newer"));
    updater->start();
    ASSERT_TRUE(shows("Check for updates automatically?"));
    EXPECT_EQ(asked(), 0u);
    press("Check Automatically");
    ASSERT_TRUE(shows("is available"));
    EXPECT_EQ(asked(), 1u);
    EXPECT_LE(std::time(nullptr) - settings.integer(GtkUpdaterController::lastCheckKey), 60);
    press("Skip This Version");
    EXPECT_TRUE(closes());

    settings.setInteger(GtkUpdaterController::lastCheckKey, std::time(nullptr) - 25L * 60 * 60);
    updater = makeUpdater(feed("newer"));
    updater->start();
    EXPECT_TRUE(until([&] { return asked() == 2; }));
    EXPECT_FALSE(window());
    updater->checkForUpdates(); // who asks is told all the same
    EXPECT_TRUE(shows("is available"));
}

} // namespace desktop
