#include "platform/gtk/foundation/TemporaryFolder.h"

#include <glib.h>

namespace gtk {

TemporaryFolder::TemporaryFolder()
{
    g_autofree char* path = g_dir_make_tmp("velmaro-XXXXXX", nullptr);
    if (path)
        path_ = path;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code error;
    if (!path_.empty())
        std::filesystem::remove_all(path_, error);
}

} // namespace gtk
