#include "platform/gtk/webkit/GtkDownload.h"

#include "platform/foundation/FileName.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace gtk {

using platform::URL;

namespace {

// Gives the file another name on the same file system, in one step, unless something bears that
// name: then it is EEXIST, and nothing changes. Returns the system's error; 0 on success.
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

} // namespace

GtkDownload::GtkDownload(WebKitDownload* download, std::function<void(GtkDownload&)> onEnd)
    : download_(retain(download))
    , onEnd_(std::move(onEnd))
{
    watch();
}

GtkDownload::~GtkDownload()
{
    stop("The program has ended");
}

void GtkDownload::watch()
{
    const auto connect = [this](const char* signal, auto handler) {
        signals_.connect(download_.get(), signal, G_CALLBACK(+handler), this);
    };
    connect(
        "decide-destination", [](WebKitDownload*, const char* suggestedName, GtkDownload* self) {
            self->suggestedName_ = platform::safeFileName(suggestedName ? suggestedName : "");
            self->askForDestination([weakSelf = self->weak_from_this()](const auto& destination) {
                if (const auto self = weakSelf.lock())
                    self->receiveInto(destination);
            });
            return TRUE;
        });
    connect("notify::estimated-progress",
        [](GObject*, GParamSpec*, GtkDownload* self) { self->progressed(); });
    connect("failed", [](WebKitDownload*, GError* error, GtkDownload* self) {
        const auto alive = self->shared_from_this(); // its end may let it go
        self->fail(error->message);
    });
    connect("finished", [](WebKitDownload*, GtkDownload* self) {
        const auto alive = self->shared_from_this();
        if (self->onEnd_) // the engine tells this after a failure too
            self->moveToDestination();
    });
}

// In whole hundredths, each of which is told once.
void GtkDownload::progressed()
{
    auto* response = webkit_download_get_response(download_.get());
    if (!response || webkit_uri_response_get_content_length(response) == 0)
        return;
    const double fraction =
        std::floor(webkit_download_get_estimated_progress(download_.get()) * 100) / 100;
    if (fractionCompleted() != fraction)
        fractionCompleted = fraction;
}

void GtkDownload::askForDestination(const std::function<void(const std::optional<URL>&)>& decide)
{
    if (const auto owner = delegate.lock())
        owner->decideDestination(shared_from_this(), suggestedName_, decide);
    else
        decide(std::nullopt);
}

void GtkDownload::receiveInto(const std::optional<URL>& destination)
{
    if (!onEnd_)
        return;
    if (!destination || !destination->isFileURL())
        return cancel();
    destination_ = destination->path();
    const auto parent = destination_.parent_path();
    folder_ = std::make_unique<UnfinishedFolder>(parent);
    if (folder_->error())
        return stop("The folder " + parent.string()
            + " cannot be written to: " + g_strerror(folder_->error()));
    webkit_download_set_destination(download_.get(), folder_->file().c_str());
}

void GtkDownload::moveToDestination()
{
    const int error = renameWithoutReplacing(folder_->file(), destination_);
    if (error == 0)
        return finish();
    if (error != EEXIST)
        return fail(g_strerror(error));

    askForDestination([weakSelf = weak_from_this()](const std::optional<URL>& destination) {
        const auto self = weakSelf.lock();
        if (!self || !self->onEnd_)
            return;
        if (!destination || destination->path() == self->destination_)
            return self->fail(g_strerror(EEXIST));
        self->destination_ = destination->path();
        self->moveToDestination();
    });
}

void GtkDownload::finish()
{
    const auto onEnd = std::exchange(onEnd_, nullptr);
    folder_.reset();
    if (const auto owner = delegate.lock())
        owner->downloadDidFinish(shared_from_this());
    onEnd(*this);
}

void GtkDownload::stop(const std::string& reason)
{
    if (!onEnd_)
        return;
    const ObjectPointer<WebKitDownload> download = retain(download_.get());
    fail(reason); // before the engine tells a reason of its own
    webkit_download_cancel(download.get());
}

void GtkDownload::fail(const std::string& reason)
{
    const auto onEnd = std::exchange(onEnd_, nullptr);
    if (!onEnd)
        return;
    folder_.reset();
    const auto owner = delegate.lock();
    const auto self = weak_from_this().lock(); // null on its way out
    if (owner && self)
        owner->downloadDidFail(self, {reason});
    onEnd(*this);
}

} // namespace gtk
