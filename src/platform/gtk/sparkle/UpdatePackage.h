#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/Lifetime.h"
#include "platform/gtk/sparkle/UpdateRequest.h"
#include "platform/sparkle/SUAppcastItem.h"

#include <filesystem>
#include <fstream>
#include <future>

namespace gtk {

// Fetches the package of a newer version into a file, and finds out whether it may be opened: it
// has the length and the signature that its feed tells, and the version inside it is the one on
// offer and not older than the running one. The signature comes first; nothing looks into a package
// that the maker has not signed.
class UpdatePackage {
public:
    struct Options {
        platform::SUAppcastItem item; // what the feed tells about it
        std::filesystem::path file;
        std::shared_ptr<const HostTrust> trust; // never null
        std::string publicKey;
        std::string runningVersion; // as people know it
    };

    struct Handlers {
        std::function<void(std::uint64_t bytes)> progress; // so far

        // Called once, at the end, with the reason if the package may not be opened. May destroy
        // this.
        std::function<void(std::optional<platform::NSError>)> finish;
    };

    // Begins at once; the handlers are called later. The file's folder is made if need be, for the
    // user alone, and emptied of earlier packages. `queue` must outlive this.
    UpdatePackage(Options options, platform::DispatchQueue& queue, Handlers handlers);

    // Removes the file unless it may be opened; no handler is called any more.
    ~UpdatePackage();

    UpdatePackage(const UpdatePackage&) = delete;
    UpdatePackage& operator=(const UpdatePackage&) = delete;

private:
    using Failure = std::optional<platform::NSError>;

    bool write(std::string_view bytes);
    void fetched(const Failure& failure);
    Failure checkSignature() const;
    void signatureChecked(const Failure& failure);
    Failure checkVersion(const std::optional<std::string>& version) const;
    void finish(Failure failure);

    const Options options_;
    platform::DispatchQueue& queue_;
    const Handlers handlers_;
    std::ofstream stream_; // into the file
    std::uint64_t received_ = 0; // bytes
    bool isGood_ = false; // it may be opened
    std::unique_ptr<UpdateRequest> request_;
    std::shared_ptr<void> reading_; // of the version
    platform::Lifetime lifetime_;
    std::future<void> thread_; // checks the signature; its end is waited for
};

} // namespace gtk
