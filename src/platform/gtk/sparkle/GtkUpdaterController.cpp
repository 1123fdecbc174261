#include "platform/gtk/sparkle/GtkUpdaterController.h"

#include "platform/appkit/NSWorkspace.h"
#include "platform/gtk/foundation/ProgramOutput.h"
#include "platform/sparkle/SUAppcast.h"
#include "platform/sparkle/SUEdSignature.h"
#include "platform/sparkle/SUVersionComparison.h"

#include <ctime>
#include <glib.h>

namespace gtk {

using platform::NSError;
using platform::SUAppcastItem;

namespace {

constexpr std::uint64_t largestFeed = 1'000'000; // bytes
constexpr std::uint64_t largestPackage = 512'000'000; // bytes
constexpr std::time_t day = 24L * 60 * 60; // seconds
constexpr auto packageName = "velmaro-online.deb";

std::string inMegabytes(std::uint64_t bytes)
{
    g_autofree char* text = g_format_size(bytes);
    return text;
}

} // namespace

GtkUpdaterController::GtkUpdaterController(Options options, Services services)
    : options_(std::move(options))
    , services_(services)
    , window_({[this] { return services_.store.boolean(checksAutomaticallyKey); },
          [this](bool isAllowed) { setChecksAutomatically(isAllowed); }})
{
}

void GtkUpdaterController::start()
{
    if (!canCheckForUpdates())
        return;
    services_.queue.asyncWhenIdle(lifetime_.guard([this] { startNow(); }));
}

bool GtkUpdaterController::canCheckForUpdates() const
{
    return !options_.feed.empty() && platform::isEdPublicKey(options_.publicKey);
}

void GtkUpdaterController::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    if (window_.isOpen())
        window_.bringForward();
    else
        check(Cause::user);
}

void GtkUpdaterController::startNow()
{
    findInstallationOwner([this](InstallationOwner owner) {
        if (owner != InstallationOwner::nobody || window_.isOpen())
            return;
        auto& store = services_.store;
        if (store.contains(checksAutomaticallyKey)) {
            if (isCheckDue())
                check(Cause::schedule);
        } else if (store.boolean(hasLaunchedKey)) {
            askForPermission();
        } else {
            store.setBoolean(hasLaunchedKey, true);
        }
    });
}

void GtkUpdaterController::findInstallationOwner(std::function<void(InstallationOwner)> handler)
{
    using enum InstallationOwner;
    ownerSearch_ = runProgram({"dpkg-query", "--search", options_.executable},
        [this, handler = std::move(handler)](const auto& packages) {
            handler(options_.isSandboxed ? flatpak : packages ? packageManager : nobody);
        });
}

bool GtkUpdaterController::isCheckDue() const
{
    if (!services_.store.boolean(checksAutomaticallyKey))
        return false;
    const auto passed = std::time(nullptr) - services_.store.integer(lastCheckKey);
    return passed < 0 || passed >= day;
}

void GtkUpdaterController::askForPermission()
{
    const auto decide = [this](bool isAllowed) {
        return [this, isAllowed] {
            window_.close();
            setChecksAutomatically(isAllowed);
            if (isAllowed)
                check(Cause::schedule);
        };
    };
    window_.show({
        .title = "Check for updates automatically?",
        .text = "Velmaro Online can look for newer versions once a day. You can always look "
                "yourself with “Check for Updates…”.",
        .buttons = {{"Don\u2019t Check", decide(false)}, {"Check Automatically", decide(true)}},
        .onClose = [this] { window_.close(); },
    });
}

void GtkUpdaterController::setChecksAutomatically(bool isAllowed)
{
    services_.store.setBoolean(checksAutomaticallyKey, isAllowed);
}

void GtkUpdaterController::check(Cause cause)
{
    endSession();
    cause_ = cause;
    if (cause_ == Cause::user)
        showChecking();
    findInstallationOwner([this](InstallationOwner owner) {
        if (owner == InstallationOwner::nobody)
            fetchFeed();
        else
            showOwner(owner);
    });
}

void GtkUpdaterController::fetchFeed()
{
    services_.store.setInteger(lastCheckKey, std::time(nullptr));
    feedRequest_ = std::make_unique<UpdateRequest>(
        UpdateRequest::Options{
            .address = options_.feed,
            .trust = options_.trust,
            .mostBytes = largestFeed,
            .tooLong = "The list of updates is too large to be one.",
        },
        UpdateRequest::Handlers{
            .receive =
                [this](std::string_view bytes) {
                    feed_ += bytes;
                    return true;
                },
            .finish = [this](const Failure& failure) { feedFetched(failure); },
        });
}

void GtkUpdaterController::feedFetched(const Failure& failure)
{
    feedRequest_.reset();
    if (failure)
        return showFailure(*failure);
    const auto appcast = platform::SUAppcast::parse(feed_);
    if (!appcast)
        return showFailure({"The list of updates cannot be read."});
    const auto* newest = appcast->newest();
    if (newest && std::is_gt(platform::compareVersions(newest->versionString, options_.version)))
        offer(*newest);
    else
        showNothingNewer(newest);
}

void GtkUpdaterController::offer(const SUAppcastItem& item)
{
    if (cause_ == Cause::schedule && isSkipped(item))
        return endSession();
    item_ = item;
    const auto skip = [this] {
        services_.store.setStringArray(skippedVersionKey, {item_.versionString});
        endSession();
    };
    window_.show({
        .title = "A new version of Velmaro Online is available",
        .text = "Version " + item.displayVersionString + " is available; you have "
            + options_.displayVersion + ". Would you like to download it now ("
            + inMegabytes(item.contentLength) + ")?",
        .notes = item.itemDescription,
        .offersAutomaticChecks = true,
        .buttons =
            {
                {"Skip This Version", skip},
                {"Later", [this] { endSession(); }},
                {"Install", [this] { fetchPackage(); }},
            },
        .onClose = [this] { endSession(); },
    });
}

void GtkUpdaterController::fetchPackage()
{
    if (item_.contentLength > largestPackage)
        return showFailure({"The update is larger than any version could be ("
            + inMegabytes(item_.contentLength) + "). It was not downloaded."});
    const auto cancel = [this] { endSession(); };
    window_.show({
        .title = "Downloading update",
        .showsProgress = true,
        .buttons = {{"Cancel", cancel}},
        .onClose = cancel,
    });
    const auto progress = [this](std::uint64_t bytes) {
        window_.setProgress(static_cast<double>(bytes) / static_cast<double>(item_.contentLength),
            inMegabytes(bytes) + " of " + inMegabytes(item_.contentLength));
    };
    progress(0);
    package_ = std::make_unique<UpdatePackage>(
        UpdatePackage::Options{
            .item = item_,
            .file = packagePath(),
            .trust = options_.trust,
            .publicKey = options_.publicKey,
            .runningVersion = options_.displayVersion,
        },
        services_.queue,
        UpdatePackage::Handlers{
            .progress = progress,
            .finish = [this](const Failure& failure) { packageFetched(failure); },
        });
}

void GtkUpdaterController::packageFetched(const Failure& failure)
{
    if (!failure)
        return handOver();
    package_.reset();
    showFailure(*failure);
}

void GtkUpdaterController::handOver()
{
    const auto package = platform::URL::fileURL(packagePath().string());
    services_.workspace.open(package);
    window_.show({
        .title = "Velmaro Online " + item_.displayVersionString + " is ready to install",
        .text = "The update was verified and handed to your system\u2019s installer. Follow its "
                "steps, then start Velmaro Online again.",
        .buttons =
            {
                {"Show in Files",
                    [this, package] {
                        services_.workspace.activateFileViewerSelecting({package});
                    }},
                {"Done", [this] { endSession(); }},
            },
        .onClose = [this] { endSession(); },
    });
}

void GtkUpdaterController::showOwner(InstallationOwner owner)
{
    if (cause_ == Cause::schedule)
        return endSession();
    const bool isFlatpak = owner == InstallationOwner::flatpak;
    window_.show({
        .title = "Velmaro Online is updated with your system",
        .text = std::string("It was installed by ")
            + (isFlatpak ? "Flatpak" : "your system\u2019s package manager")
            + ", which also brings its new versions.",
        .buttons = {{"OK", [this] { endSession(); }}},
        .onClose = [this] { endSession(); },
    });
}

void GtkUpdaterController::showChecking()
{
    window_.show({
        .title = "Checking for updates…",
        .showsProgress = true,
        .buttons = {{"Cancel", [this] { endSession(); }}},
        .onClose = [this] { endSession(); },
    });
    window_.setProgress(std::nullopt);
}

void GtkUpdaterController::showNothingNewer(const SUAppcastItem* newest)
{
    if (cause_ == Cause::schedule)
        return endSession();
    const bool isOlder =
        newest && std::is_lt(platform::compareVersions(newest->versionString, options_.version));
    window_.show({
        .title = "You\u2019re up to date!",
        .text = "Velmaro Online " + options_.displayVersion
            + (isOlder ? " is newer than the newest version on offer ("
                        + newest->displayVersionString + "), which is not installed over it."
                       : " is currently the newest version available."),
        .offersAutomaticChecks = true,
        .buttons = {{"OK", [this] { endSession(); }}},
        .onClose = [this] { endSession(); },
    });
}

void GtkUpdaterController::showFailure(const NSError& failure)
{
    if (cause_ == Cause::schedule && !window_.isOpen())
        return endSession();
    window_.show({
        .title = "Velmaro Online could not be updated",
        .text = failure.localizedDescription,
        .buttons = {{"OK", [this] { endSession(); }}},
        .onClose = [this] { endSession(); },
    });
}

void GtkUpdaterController::endSession()
{
    ownerSearch_.reset();
    feedRequest_.reset();
    package_.reset();
    feed_.clear();
    window_.close();
}

bool GtkUpdaterController::isSkipped(const SUAppcastItem& item) const
{
    const auto skipped = services_.store.stringArray(skippedVersionKey);
    return skipped && *skipped == std::vector{item.versionString};
}

std::filesystem::path GtkUpdaterController::packagePath() const
{
    return options_.downloads / packageName;
}

} // namespace gtk
