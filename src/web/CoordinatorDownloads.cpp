// What the coordinator does about downloads.

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/FileManager.h"
#include "platform/Platform.h"
#include "web/Coordinator.h"
#include "web/DownloadList.h"
#include "web/Downloads.h"

namespace velmaro {

using platform::DispatchQueue;
using platform::FileManager;
using platform::URL;
using platform::WKDownload;
using platform::WKWebView;

void Coordinator::navigationActionDidBecomeDownload(
    WKWebView&, const std::shared_ptr<WKDownload>& download)
{
    download->delegate = weak_from_this();
}

void Coordinator::navigationResponseDidBecomeDownload(
    WKWebView&, const std::shared_ptr<WKDownload>& download)
{
    download->delegate = weak_from_this();
}

void Coordinator::decideDestination(const std::shared_ptr<WKDownload>& download,
    const std::string& suggestedFilename,
    const std::function<void(const std::optional<URL>&)>& decide)
{
    auto& files = FileManager::defaultManager();
    const auto folder = files.downloadsDirectory(true).value_or(
        files.homeDirectory().appendingPathComponent("Downloads"));
    const auto destination = uniqueDestination(folder, suggestedFilename);
    downloadDestinations.insert_or_assign(download.get(), destination);
    DownloadList::shared().begin(download, destination);
    decide(destination);
}

void Coordinator::downloadDidFinish(const std::shared_ptr<WKDownload>& download)
{
    const auto entry = downloadDestinations.extract(download.get());
    if (!entry)
        return;
    DownloadList::shared().finish(*download);
    if (isExportFile(entry.mapped()))
        DispatchQueue::main().async([file = entry.mapped()] { showExportSavedAlert(file); });
}

void Coordinator::downloadDidFail(
    const std::shared_ptr<WKDownload>& download, const platform::NSError& error)
{
    downloadDestinations.erase(download.get());
    DownloadList::shared().fail(*download, error.localizedDescription);
    platform::NSLog("Velmaro download failed: " + error.localizedDescription);
}

} // namespace velmaro
