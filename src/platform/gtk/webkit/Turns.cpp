#include "platform/gtk/webkit/Turns.h"

#include <utility>

namespace gtk {

Turns::Turn::Turn(std::shared_ptr<Turns> turns, std::function<void()> begin)
    : turns_(std::move(turns))
    , begin_(std::move(begin))
{
}

Turns::Turn::~Turn()
{
    std::erase(turns_->waiting_, this);
    if (patience_.isRunning())
        --turns_->working_;
    turns_->updateSoon();
}

std::unique_ptr<Turns::Turn> Turns::ask(std::function<void()> begin)
{
    auto turn = std::make_unique<Turn>(shared_from_this(), std::move(begin));
    waiting_.push_back(turn.get());
    updateSoon();
    return turn;
}

void Turns::updateSoon()
{
    if (!update_.isRunning())
        update_.start(0, [this] { update(); });
}

void Turns::update()
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
