#include "platform/gtk/sparkle/UpdatePackage.h"

#include "platform/gtk/foundation/ProgramOutput.h"
#include "platform/sparkle/SUEdSignature.h"
#include "platform/sparkle/SUVersionComparison.h"

#include <glib.h>

namespace gtk {

namespace files = std::filesystem;
using platform::compareVersions;
using platform::NSError;

namespace {

constexpr auto tooLong = "The download is larger than announced. Nothing was opened.";

void makeEmptyFolder(const files::path& folder)
{
    std::error_code ignored; // shows when the file cannot be written
    files::remove_all(folder, ignored);
    files::create_directories(folder, ignored);
    files::permissions(folder, files::perms::owner_all, ignored);
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

UpdatePackage::UpdatePackage(Options options, platform::DispatchQueue& queue, Handlers handlers)
    : options_(std::move(options))
    , queue_(queue)
    , handlers_(std::move(handlers))
{
    makeEmptyFolder(options_.file.parent_path());
    stream_.open(options_.file, std::ios::binary | std::ios::trunc);
    request_ = std::make_unique<UpdateRequest>(
        UpdateRequest::Options{
            .address = options_.item.fileURL,
            .trust = options_.trust,
            .mostBytes = options_.item.contentLength,
            .tooLong = tooLong,
        },
        UpdateRequest::Handlers{
            .receive = [this](std::string_view bytes) { return write(bytes); },
            .finish = [this](const Failure& failure) { fetched(failure); },
        });
}

UpdatePackage::~UpdatePackage()
{
    std::error_code ignored; // it may be gone already
    if (!isGood_)
        files::remove(options_.file, ignored);
}

bool UpdatePackage::write(std::string_view bytes)
{
    if (!stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        return false;
    received_ += bytes.size();
    handlers_.progress(received_);
    return true;
}

void UpdatePackage::fetched(const Failure& failure)
{
    stream_.close();
    if (failure)
        return finish(failure);
    // Off the main thread, since a large package takes a second.
    thread_ = std::async(std::launch::async,
        [this, tell = lifetime_.guard([this](const Failure& flaw) { signatureChecked(flaw); })] {
            queue_.async([tell, flaw = checkSignature()]() mutable { tell(flaw); });
        });
}

UpdatePackage::Failure UpdatePackage::checkSignature() const
{
    const auto& item = options_.item;
    g_autoptr(GMappedFile) file = g_mapped_file_new(options_.file.c_str(), FALSE, nullptr);
    const auto size = file ? g_mapped_file_get_length(file) : 0;
    if (size < item.contentLength)
        return NSError{"The download ended too early. Nothing was opened."};
    if (size > item.contentLength)
        return NSError{tooLong};
    if (item.edSignature.empty())
        return NSError{"The update is not signed by its maker. It was not opened."};
    const auto* bytes = reinterpret_cast<const std::byte*>(g_mapped_file_get_contents(file));
    if (!platform::isSigned({bytes, size}, item.edSignature, options_.publicKey))
        return NSError{"The update does not bear its maker\u2019s signature: it was changed on its "
                       "way, or comes from somebody else. It was not opened."};
    return std::nullopt;
}

void UpdatePackage::signatureChecked(const Failure& failure)
{
    if (failure)
        return finish(failure);
    reading_ = runProgram({"dpkg-deb", "--field", options_.file, "Version"},
        [this](const auto& version) { finish(checkVersion(version)); });
}

UpdatePackage::Failure UpdatePackage::checkVersion(const std::optional<std::string>& version) const
{
    if (!version)
        return NSError{"The update is no package for this system. It was not opened."};
    const auto held = upstreamVersion(*version);
    const auto& offered = options_.item.displayVersionString;
    if (std::is_lt(compareVersions(held, options_.runningVersion)))
        return NSError{"The package holds version " + held + ", which is older than yours ("
            + options_.runningVersion + "). It was not opened."};
    if (std::is_neq(compareVersions(held, offered)))
        return NSError{"The package holds version " + held + " instead of " + offered
            + ". It was not opened."};
    return std::nullopt;
}

void UpdatePackage::finish(Failure failure)
{
    isGood_ = !failure;
    const auto tell = handlers_.finish; // which may destroy this
    tell(std::move(failure));
}

} // namespace gtk
