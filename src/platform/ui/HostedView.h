#pragma once

#include "platform/ui/Node.h"

namespace ui {

// A mounted place for a native view: made late, then kept as long as the place. It owns the view
// and its coordinator. Main thread only.
class HostedView {
public:
    explicit HostedView(std::shared_ptr<const HostedNode> node)
        : node_(std::move(node))
    {
    }

    bool isMade() const { return view_ != nullptr; }
    bool waitsForFirstFrame() const { return node_->waitsForFirstFrame(); }

    // The native view; made, with its coordinator, by the first call.
    const std::shared_ptr<platform::NSView>& view()
    {
        if (!view_) {
            coordinator_ = node_->makeCoordinator();
            view_ = node_->makeNSView(coordinator_.get());
        }
        return view_;
    }

    void update(std::shared_ptr<const HostedNode> node)
    {
        node_ = std::move(node);
        if (view_)
            node_->updateNSView(*view_, coordinator_.get());
    }

private:
    std::shared_ptr<const HostedNode> node_;
    std::shared_ptr<void> coordinator_;
    std::shared_ptr<platform::NSView> view_; // goes before its coordinator
};

} // namespace ui
