#include "updates/CheckForUpdatesView.h"

#include "platform/sparkle/SPUUpdater.h"
#include "updates/UpdaterController.h"

namespace velmaro {

bool CheckForUpdatesView::isEnabled() const
{
    return updater->controller->updater().canCheckForUpdates();
}

void CheckForUpdatesView::checkForUpdates() const
{
    updater->controller->checkForUpdates();
}

} // namespace velmaro
