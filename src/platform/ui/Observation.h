#pragma once

#include <functional>
#include <vector>

namespace ui {

class Subject;

// An object that has read published fields and is told when one of them changes. Main thread only.
class Observer {
public:
    Observer() = default;
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    // A field read during the last `track` was written, once per write. Must not destroy the
    // observer.
    virtual void subjectChanged() = 0;

    // Runs `read` and observes just the fields that it reads; those of an earlier call are
    // forgotten.
    void track(const std::function<void()>& read);

    void stopObserving();

protected:
    virtual ~Observer();

private:
    friend class Subject;

    std::vector<Subject*> subjects_;
};

// Something that can be observed: the part of a published field that does not depend on its type.
class Subject {
public:
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;

protected:
    Subject() = default;
    ~Subject();

    // Subscribes the observer that is tracking, if any.
    void noteRead() const;

    void notifyObservers() const;

private:
    friend class Observer;

    mutable std::vector<Observer*> observers_;
};

// An observer outside views: calls `onChange` after each change of a field that `read` has read,
// for as long as it lives. `onChange` may call `track` again to follow what is read by then.
class Observation final : public Observer {
public:
    Observation(const std::function<void()>& read, std::function<void()> onChange)
        : onChange_(std::move(onChange))
    {
        track(read);
    }

private:
    void subjectChanged() override { onChange_(); }

    std::function<void()> onChange_;
};

} // namespace ui
