#include "platform/gtk/sparkle/PackageCheck.h"

#include "platform/gtk/foundation/ProgramOutput.h"
#include "platform/sparkle/SUEdSignature.h"
#include "platform/sparkle/SUVersionComparison.h"

#include <glib.h>

namespace gtk {

using platform::compareVersions;
using platform::NSError;

namespace {

std::optional<NSError> checkSignature(
    const std::filesystem::path& package, const PackageCheck::Expectation& expectation)
{
    g_autoptr(GMappedFile) file = g_mapped_file_new(package.c_str(), FALSE, nullptr);
    const auto size = file ? g_mapped_file_get_length(file) : 0;
    if (size < expectation.item.contentLength)
        return NSError{"The download ended too early. Nothing was opened."};
    if (size > expectation.item.contentLength)
        return NSError{"The download is larger than announced. Nothing was opened."};
    if (expectation.item.edSignature.empty())
        return NSError{"The update is not signed by its maker. It was not opened."};
    const auto* bytes = reinterpret_cast<const std::byte*>(g_mapped_file_get_contents(file));
    if (!platform::isSigned({bytes, size}, expectation.item.edSignature, expectation.publicKey))
        return NSError{"The update does not bear its maker\u2019s signature: it was changed on its "
                       "way, or comes from somebody else. It was not opened."};
    return std::nullopt;
}

// "1:2.0.0-3" is 2.0.0 in the third packaging.
std::string upstreamVersion(std::string version)
{
    while (!version.empty() && g_ascii_isspace(version.back()))
        version.pop_back();
    if (const auto colon = version.find(':'); colon != version.npos)
        version.erase(0, colon + 1);
    if (const auto hyphen = version.rfind('-'); hyphen != version.npos)
        version.erase(hyphen);
    return version;
}

} // namespace

PackageCheck::PackageCheck(std::filesystem::path package, Expectation expectation,
    platform::DispatchQueue& queue, std::function<void(std::optional<NSError>)> finish)
    : package_(std::move(package))
    , expectation_(std::move(expectation))
    , finish_(std::move(finish))
{
    // A large package takes a second.
    thread_ = std::async(std::launch::async, [this, &queue, life = std::weak_ptr(life_)] {
        const auto failure = checkSignature(package_, expectation_);
        queue.async([this, life, failure] {
            if (!life.expired())
                signatureChecked(failure);
        });
    });
}

PackageCheck::~PackageCheck() = default;

void PackageCheck::signatureChecked(const std::optional<NSError>& failure)
{
    if (failure)
        return finish_(failure);
    reading_ = runProgram({"dpkg-deb", "--field", package_, "Version"},
        [this](const auto& version) { versionRead(version); });
}

void PackageCheck::versionRead(const std::optional<std::string>& version)
{
    if (!version)
        return finish_(NSError{"The update is no package for this system. It was not opened."});
    const auto held = upstreamVersion(*version);
    if (std::is_lt(compareVersions(held, expectation_.runningVersion)))
        return finish_(NSError{"The package holds version " + held + ", which is older than yours ("
            + expectation_.runningVersion + "). It was not opened."});
    if (std::is_neq(compareVersions(held, expectation_.item.displayVersionString)))
        return finish_(NSError{"The package holds version " + held + " instead of "
            + expectation_.item.displayVersionString + ". It was not opened."});
    finish_(std::nullopt);
}

} // namespace gtk
