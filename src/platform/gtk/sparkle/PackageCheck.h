#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/NSError.h"
#include "platform/sparkle/SUAppcastItem.h"

#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>

namespace gtk {

// Finds out whether a downloaded package may be opened: it has the length and the signature that
// its feed tells, and the version inside it is the one on offer and not older than the running
// one. The signature comes first; nothing looks into a package that the maker has not signed.
class PackageCheck {
public:
    struct Expectation {
        platform::SUAppcastItem item;
        std::string publicKey;
        std::string runningVersion; // as people know it
    };

    // `finish` is called once, later, with what is wrong; with nothing when all is well. `queue`
    // must outlive this.
    PackageCheck(std::filesystem::path package, Expectation expectation,
        platform::DispatchQueue& queue,
        std::function<void(std::optional<platform::NSError>)> finish);

    // Ends the check, waiting for its thread; `finish` is not called any more.
    ~PackageCheck();

    PackageCheck(const PackageCheck&) = delete;
    PackageCheck& operator=(const PackageCheck&) = delete;

private:
    void signatureChecked(const std::optional<platform::NSError>& failure);
    void versionRead(const std::optional<std::string>& version);

    const std::filesystem::path package_;
    const Expectation expectation_;
    const std::function<void(std::optional<platform::NSError>)> finish_;
    std::shared_ptr<void> life_ = std::make_shared<char>();
    std::shared_ptr<void> reading_; // of the version
    std::future<void> thread_;
};

} // namespace gtk
