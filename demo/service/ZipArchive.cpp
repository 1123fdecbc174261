#include "service/ZipArchive.h"

#include <zlib.h>

namespace demo {

namespace {

constexpr std::uint32_t utf8Names = 0x0800;
constexpr std::uint32_t version = 20;
constexpr std::uint32_t firstOfNovember2026 = ((2026 - 1980) << 9) | (11 << 5) | 1;

std::uint32_t checksum(std::string_view content)
{
    const auto* bytes = reinterpret_cast<const Bytef*>(content.data());
    return static_cast<std::uint32_t>(crc32_z(0, bytes, content.size()));
}

void append(std::string& text, std::uint32_t value, int bytes)
{
    for (int byte = 0; byte < bytes; ++byte)
        text += static_cast<char>((value >> (8 * byte)) & 0xFF);
}

/// The part that a file's own header and its line in the directory have in common.
std::string commonHeader(std::string_view name, std::string_view content)
{
    const auto size = static_cast<std::uint32_t>(content.size());
    std::string header;
    append(header, version, 2);
    append(header, utf8Names, 2);
    append(header, 0, 2); // Stored.
    append(header, 0, 2); // Midnight.
    append(header, firstOfNovember2026, 2);
    append(header, checksum(content), 4);
    append(header, size, 4);
    append(header, size, 4);
    append(header, static_cast<std::uint32_t>(name.size()), 2);
    append(header, 0, 2); // No extra field.
    return header;
}

} // namespace

void ZipArchive::add(std::string_view name, std::string_view content)
{
    const auto offset = static_cast<std::uint32_t>(files_.size());
    const std::string header = commonHeader(name, content);

    files_.append("PK\3\4").append(header).append(name).append(content);

    directory_ += "PK\1\2";
    append(directory_, version, 2);
    directory_ += header;
    append(directory_, 0, 2); // No comment.
    append(directory_, 0, 2); // The only disk.
    append(directory_, 0, 2);
    append(directory_, 0, 4);
    append(directory_, offset, 4);
    directory_ += name;
    ++count_;
}

std::string ZipArchive::bytes() const
{
    std::string archive = files_ + directory_ + "PK\5\6";
    append(archive, 0, 4);
    append(archive, count_, 2);
    append(archive, count_, 2);
    append(archive, static_cast<std::uint32_t>(directory_.size()), 4);
    append(archive, static_cast<std::uint32_t>(files_.size()), 4);
    append(archive, 0, 2);
    return archive;
}

} // namespace demo
