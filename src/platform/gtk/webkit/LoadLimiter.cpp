#include "platform/gtk/webkit/LoadLimiter.h"

#include <utility>

namespace gtk {

LoadLimiter::Turn::Turn(std::shared_ptr<LoadLimiter> turns, std::function<void()> begin)
    : limiter_(std::move(turns))
    , begin_(std::move(begin))
{
}

LoadLimiter::Turn::~Turn()
{
    std::erase(limiter_->waiting_, this);
    if (patience_.isRunning())
        --limiter_->working_;
    limiter_->updateSoon();
}

std::unique_ptr<LoadLimiter::Turn> LoadLimiter::ask(std::function<void()> begin)
{
    auto turn = std::make_unique<Turn>(shared_from_this(), std::move(begin));
    waiting_.push_back(turn.get());
    updateSoon();
    return turn;
}

void LoadLimiter::updateSoon()
{
    if (!update_.isRunning())
        update_.start(0, [this] { update(); });
}

void LoadLimiter::update()
{
    while (working_ < count_ && !waiting_.empty()) {
        auto* turn = waiting_.front();
        waiting_.pop_front();
        ++working_;
        turn->patience_.start(patience_, [this] {
            --working_;
            updateSoon();
        });
        std::exchange(turn->begin_, nullptr)(); // may drop the turn
    }
}

} // namespace gtk
