#include "platform/gtk/foundation/AtomicFile.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <glib.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace gtk::AtomicFile {

namespace {

constexpr int maximumLinks = 40; // as many as the kernel follows

class Descriptor {
public:
    explicit Descriptor(int number)
        : number_(number)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    int number() const { return number_; }
    bool isOpen() const { return number_ >= 0; }

    // False when the system tells only now that something was not written.
    bool close()
    {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

private:
    int number_;
};

std::string lastError()
{
    return g_strerror(errno);
}

bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const auto written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::filesystem::path followLinks(std::filesystem::path path)
{
    std::error_code error;
    for (int i = 0; i < maximumLinks && std::filesystem::is_symlink(path, error); ++i) {
        const auto target = std::filesystem::read_symlink(path, error);
        if (error)
            break;
        path = path.parent_path() / target; // an absolute target replaces the folder
    }
    return path;
}

// A file of a name of its own for each attempt, so that two programs never write into the same. The
// name is short: one that is just short enough for the file system leaves no room for more.
Descriptor makeTemporaryFile(std::string& path, mode_t permissions)
{
    const auto beginning = path + "/.velmaro-";
    while (true) {
        char digits[9];
        g_snprintf(digits, sizeof digits, "%08x", g_random_int());
        path = beginning + digits;
        const int number =
            ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
        if (number >= 0 || errno != EEXIST)
            return Descriptor(number);
    }
}

// Makes the names in `folder` as durable as what they stand for.
bool synchronizeFolder(const std::filesystem::path& folder)
{
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return descriptor.isOpen() && (::fsync(descriptor.number()) == 0 || errno == EINVAL);
}

Contents readAll(const Descriptor& file)
{
    Contents contents{.text = {}, .failure = {}, .exists = true};
    struct stat status = {};
    if (::fstat(file.number(), &status) == 0)
        contents.text.reserve(static_cast<std::size_t>(status.st_size));
    char buffer[16384];
    while (true) {
        const auto count = ::read(file.number(), buffer, sizeof buffer);
        if (count > 0)
            contents.text.append(buffer, static_cast<std::size_t>(count));
        else if (count == 0)
            return contents;
        else if (errno != EINTR)
            return {.text = {}, .failure = lastError(), .exists = true};
    }
}

} // namespace

Contents read(const std::filesystem::path& path)
{
    // Opening a pipe that somebody put there must not wait for a writer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        if (errno == ENOENT || errno == ENOTDIR)
            return {};
        return {.text = {}, .failure = lastError(), .exists = true};
    }

    try {
        return readAll(file);
    } catch (const std::bad_alloc&) {
        return {.text = {}, .failure = g_strerror(ENOMEM), .exists = true};
    }
}

std::optional<std::string> replace(
    const std::filesystem::path& path, std::string_view text, mode_t permissions)
{
    const auto target = followLinks(path);
    const auto folder = target.parent_path();
    if (g_mkdir_with_parents(folder.c_str(), 0700) != 0)
        return lastError();

    auto temporary = folder.string();
    auto file = makeTemporaryFile(temporary, permissions);
    if (!file.isOpen())
        return lastError();

    const bool isWritten = writeAll(file.number(), text) && ::fsync(file.number()) == 0
        && file.close() && ::rename(temporary.c_str(), target.c_str()) == 0;
    if (!isWritten) {
        auto failure = lastError();
        ::unlink(temporary.c_str());
        return failure;
    }

    if (!synchronizeFolder(folder))
        return lastError();
    return std::nullopt;
}

std::optional<std::string> setAside(const std::filesystem::path& path)
{
    const auto target = followLinks(path);
    if (::rename(target.c_str(), (target.string() + ".damaged").c_str()) != 0)
        return lastError();
    return std::nullopt;
}

} // namespace gtk::AtomicFile
