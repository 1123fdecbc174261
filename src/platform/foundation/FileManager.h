#pragma once

#include "platform/foundation/Data.h"
#include "platform/foundation/NSError.h"
#include "platform/foundation/URL.h"

#include <optional>
#include <string>

namespace platform {

// The user's files. The platform owns the one manager there is. Files and folders are told by
// "file" addresses. Main thread only; nothing here throws, and no operation can be held up by a
// pipe or a device.
class FileManager {
public:
    static FileManager& defaultManager();

    virtual ~FileManager() = default;

    // The user's folder for downloads. With `create` it is made where it is missing; absent when
    // the desktop names no such folder or it cannot be made.
    virtual std::optional<URL> downloadsDirectory(bool create) = 0;

    virtual URL homeDirectory() = 0;
    virtual URL temporaryDirectory() = 0;

    // Whether anything bears this name, also a folder or a link that leads nowhere.
    virtual bool fileExists(const URL& file) = 0;

    // The bytes of a regular file; absent when there is none, it cannot be read, or the name is
    // that of anything else.
    virtual std::optional<std::string> contents(const URL& file) = 0;

    // Puts `data` in the place of what bears that name, in one step: a reader finds the old file or
    // the new one whole. A missing folder is made. Returns why it could not; what was there is then
    // untouched.
    virtual std::optional<NSError> writeAtomically(const Data& data, const URL& file) = 0;
};

} // namespace platform
