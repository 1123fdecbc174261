#include "platform/gtk/foundation/Renaming.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace gtk {

int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // Some network file systems do not know that; a second name is the next best.
    if (::link(from.c_str(), to.c_str()) != 0)
        return errno;
    return ::unlink(from.c_str()) == 0 ? 0 : errno;
}

} // namespace gtk
