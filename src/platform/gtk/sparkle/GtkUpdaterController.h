#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/gtk/foundation/Sandboxing.h"
#include "platform/gtk/sparkle/UpdatePackage.h"
#include "platform/gtk/sparkle/UpdateWindow.h"
#include "platform/sparkle/SPUStandardUpdaterController.h"
#include "platform/sparkle/SPUUpdater.h"

namespace platform {
class NSWorkspace;
struct SUAppcast;
}

namespace gtk {

// Looks for newer versions in a feed, and brings one from there to the system's installer.
class GtkUpdaterController final : public platform::SPUStandardUpdaterController,
                                   public platform::SPUUpdater {
public:
    // Where newer versions come from, and what they are compared with.
    struct Options {
        std::string feed; // https address; empty: the application does not update itself
        std::string publicKey; // Ed25519, in Base64; empty with the feed
        std::shared_ptr<const HostTrust> trust; // never null

        std::string version; // of the running program, as builds are counted
        std::string displayVersion; // as people know it

        std::filesystem::path downloads; // folder for packages, of the user alone
        std::filesystem::path executable; // of the running program
        bool isSandboxed = gtk::isSandboxed();
    };

    // Keys of the store.
    static constexpr auto hasLaunchedKey = "hasLaunched";
    static constexpr auto checksAutomaticallyKey = "checksAutomatically"; // once the user decided
    static constexpr auto lastCheckKey = "lastCheck"; // seconds since 1970
    static constexpr auto skippedVersionKey = "skippedVersion"; // the only text of an array

    // All three must outlive this.
    struct Services {
        platform::DispatchQueue& queue;
        platform::UserDefaults& store; // of the updater alone
        platform::NSWorkspace& workspace; // opens packages
    };

    GtkUpdaterController(Options options, Services services);

    // To be called once. In the second launch, asks whether it may look by itself; where it may,
    // does so in an idle moment, at most once a day.
    void start();

    platform::SPUUpdater& updater() override { return *this; }
    bool canCheckForUpdates() const override;
    void checkForUpdates() override;

private:
    enum class Cause { user, schedule };

    // What has installed the program on this computer, and so brings its newer versions.
    enum class InstallationOwner {
        nobody, // it may update itself
        packageManager,
        flatpak,
    };

    using Failure = std::optional<platform::NSError>;

    void startNow();

    // Asks Debian's package manager, unless Flatpak runs the program. `handler` is called once,
    // later; not any more when the session has ended.
    void findInstallationOwner(std::function<void(InstallationOwner)> handler);

    bool isCheckDue() const;
    void askForPermission();
    void setChecksAutomatically(bool isAllowed);

    void check(Cause cause);
    void fetchFeed();
    void feedFetched(const Failure& failure);
    void offer(const platform::SUAppcastItem& item);
    void fetchPackage();
    void packageFetched(const Failure& failure);
    void handOver();

    void showOwner(InstallationOwner owner);
    void showChecking();
    void showNothingNewer(const platform::SUAppcastItem* newest);
    void showFailure(const platform::NSError& failure);
    void endSession();

    bool isSkipped(const platform::SUAppcastItem& item) const;
    std::filesystem::path packagePath() const;

    const Options options_;
    const Services services_;
    UpdateWindow window_;

    // Of the check that goes on.
    Cause cause_ = Cause::user;
    std::string feed_;
    platform::SUAppcastItem item_;
    std::shared_ptr<void> ownerSearch_;
    std::unique_ptr<UpdateRequest> feedRequest_;
    std::unique_ptr<UpdatePackage> package_;

    platform::Lifetime lifetime_;
};

} // namespace gtk
