#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The address of a resource. A URL is always valid: a text that breaks the syntax of RFC 3986, such
// as one with a blank, a lone percent sign or a letter outside ASCII, makes none. It is a plain
// value that never changes, for any thread.
class URL {
public:
    static std::optional<URL> fromString(std::string_view text);

    // The address written by looser rules, such as those of web pages: whatever may not stand where
    // it does is percent-escaped, which changes no part of the address. Absent when that does not
    // make it valid.
    static std::optional<URL> encodingInvalidCharacters(std::string_view text);

    // The address of a file or folder by its absolute path, whatever bytes it consists of.
    static URL fileURL(std::string_view path);

    // The text it was made from, unchanged.
    const std::string& absoluteString() const { return text_; }

    // As written, without the colon; absent in a relative address.
    const std::optional<std::string>& scheme() const { return scheme_; }

    // As written, percent escapes decoded, without port, user or the brackets of an IPv6 address.
    // Absent when the address has no authority or an empty one.
    const std::optional<std::string>& host() const { return host_; }

    // The decimal digits after the host; absent when there are none.
    const std::optional<std::string>& port() const { return port_; }

    // The path's names in order, percent escapes decoded. A path that starts with a slash starts
    // with the component "/"; empty names are left out, but a slash at the end counts as one more
    // "/".
    const std::vector<std::string>& pathComponents() const { return pathComponents_; }

    // The path, percent escapes decoded; with an address from `fileURL`, the bytes it was made
    // from.
    const std::string& path() const { return path_; }

    bool isFileURL() const;

    // The last of the path's names; "/" for the root, empty when there is no path.
    std::string lastPathComponent() const;

    // What follows the last dot of the last name, without the dot. Empty when there is no dot, when
    // nothing or a blank stands behind it, and when nothing but dots stands before it.
    std::string pathExtension() const;

    // The address of what is called `name` in this folder.
    URL appendingPathComponent(std::string_view name) const;

    // True when nothing stands behind scheme, host and port, and no user information before them.
    bool isOrigin() const { return isOrigin_; }

    bool operator==(const URL& other) const { return text_ == other.text_; }

private:
    URL() = default;

    std::string text_;
    std::optional<std::string> scheme_;
    std::optional<std::string> host_;
    std::optional<std::string> port_;
    std::string path_;
    std::vector<std::string> pathComponents_;
    bool isOrigin_ = false;
};

} // namespace platform
