#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/gtk/sparkle/InstallationOwner.h"
#include "platform/gtk/sparkle/PackageCheck.h"
#include "platform/gtk/sparkle/PackageDownload.h"
#include "platform/gtk/sparkle/UpdateOptions.h"
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

    GtkUpdaterController(UpdateOptions options, Services services);

    // To be called once. In the second launch, asks whether it may look by itself; where it may,
    // does so in an idle moment, at most once a day.
    void start();

    platform::SPUUpdater& updater() override { return *this; }
    bool canCheckForUpdates() const override;
    void checkForUpdates() override;

private:
    enum class Cause { user, schedule };
    using Failure = std::optional<platform::NSError>;

    void startNow();
    bool isCheckDue() const;
    void askForPermission();
    void setChecksAutomatically(bool isAllowed);

    void check(Cause cause);
    void fetchFeed();
    Failure receiveFeed(std::string_view bytes);
    void feedFetched(const Failure& failure);
    void offer(const platform::SUAppcastItem& item);
    void fetchPackage();
    void packageFetched(const Failure& failure);
    void refuse(const platform::NSError& flaw);
    void handOver();

    void showOwner(InstallationOwner owner);
    void showChecking();
    void showNothingNewer(const platform::SUAppcastItem* newest);
    void showFailure(const platform::NSError& failure);
    void endSession();
    void removePackage();

    bool isSkipped(const platform::SUAppcastItem& item) const;
    std::filesystem::path packagePath() const;

    const UpdateOptions options_;
    const Services services_;
    UpdateWindow window_;

    // Of the check that goes on.
    Cause cause_ = Cause::user;
    std::string feed_;
    platform::SUAppcastItem item_;
    std::shared_ptr<void> ownerSearch_;
    std::unique_ptr<SecureDownload> feedDownload_;
    std::unique_ptr<PackageDownload> packageDownload_;
    std::unique_ptr<PackageCheck> packageCheck_;
    bool isHandedOver_ = false; // the installer has the package

    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
