#include "web/DownloadList.h"

#include "platform/Platform.h"

#include <algorithm>
#include <functional>

namespace velmaro {

using platform::URL;
using platform::WKDownload;
using State = DownloadItem::State;

namespace {

auto findItem(std::vector<DownloadItem>& items, const WKDownload& download)
{
    return std::ranges::find_if(
        items, [&](const auto& item) { return item.download.get() == &download; });
}

bool isRunningItem(const DownloadItem& item)
{
    return item.state == State::running;
}

} // namespace

DownloadList& DownloadList::shared()
{
    return platform::Platform::current().shared<DownloadList>();
}

void DownloadList::begin(const std::shared_ptr<WKDownload>& download, const URL& file)
{
    items.mutate([&](auto& items) {
        const auto present = findItem(items, *download);
        if (present == items.end())
            items.push_back({.download = download, .file = file});
        else
            present->file = file;
    });
}

void DownloadList::finish(const WKDownload& download)
{
    end(download, State::finished, {});
}

void DownloadList::fail(const WKDownload& download, const std::string& reason)
{
    end(download, State::failed, reason);
}

void DownloadList::end(const WKDownload& download, State state, const std::string& failureReason)
{
    items.mutate([&](auto& items) {
        const auto item = findItem(items, download);
        if (item == items.end())
            return;
        item->state = state;
        item->failureReason = failureReason;
    });
}

void DownloadList::clear()
{
    items.mutate([](auto& items) { std::erase_if(items, std::not_fn(isRunningItem)); });
}

bool DownloadList::isRunning() const
{
    return std::ranges::any_of(items(), isRunningItem);
}

double DownloadList::fractionCompleted() const
{
    double sum = 0;
    int count = 0;
    for (const auto& item : items()) {
        if (!isRunningItem(item))
            continue;
        sum += item.download->fractionCompleted().value_or(0);
        ++count;
    }
    return count ? sum / count : 0;
}

} // namespace velmaro
