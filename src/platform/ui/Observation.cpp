#include "platform/ui/Observation.h"

#include <algorithm>
#include <utility>

namespace ui {

namespace {
Observer* trackingObserver = nullptr;
}

void Observer::track(const std::function<void()>& read)
{
    stopObserving();
    Observer* outer = std::exchange(trackingObserver, this);
    read();
    trackingObserver = outer;
}

void Observer::stopObserving()
{
    for (auto* subject : subjects_)
        std::erase(subject->observers_, this);
    subjects_.clear();
}

Observer::~Observer()
{
    stopObserving();
}

Subject::~Subject()
{
    for (auto* observer : observers_)
        std::erase(observer->subjects_, this);
}

void Subject::noteRead() const
{
    if (!trackingObserver)
        return;
    // The newest reader stands last, so that reading a field twice in a row is found at once.
    if (std::find(observers_.rbegin(), observers_.rend(), trackingObserver) != observers_.rend())
        return;
    observers_.push_back(trackingObserver);
    trackingObserver->subjects_.push_back(const_cast<Subject*>(this));
}

void Subject::notifyObservers() const
{
    const auto observers = observers_; // an observer may read, and so subscribe, again
    for (auto* observer : observers) {
        if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end())
            observer->subjectChanged();
    }
}

} // namespace ui
