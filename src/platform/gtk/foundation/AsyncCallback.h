#pragma once

#include <functional>
#include <gio/gio.h>
#include <memory>
#include <utility>

namespace gtk {

// A function as the two last arguments of GIO's asynchronous calls, which call it exactly once:
// g_file_delete_async(file, priority, cancellable, callback.function, callback.data).
struct AsyncCallback {
    GAsyncReadyCallback function;
    gpointer data; // owned by the call
};

// `callback` takes the object that was asked and the result. Hold weakly what it touches.
inline AsyncCallback asyncCallback(
    std::function<void(GObject* source, GAsyncResult* result)> callback)
{
    using Box = std::function<void(GObject*, GAsyncResult*)>;
    const auto call = [](GObject* source, GAsyncResult* result, gpointer data) {
        const std::unique_ptr<Box> box(static_cast<Box*>(data));
        (*box)(source, result);
    };
    return {call, std::make_unique<Box>(std::move(callback)).release()};
}

} // namespace gtk
