#pragma once

#include <map>

namespace Utility {

/// Handles an event.
template <typename Argument> class IEventHandler {
public:
    virtual void notify(void* sender, Argument argument) = 0;
};

/// Forwards an event to a member function of an object that it does not own.
template <typename C, typename Argument> class EventHandler final : public IEventHandler<Argument> {
public:
    using Member = void (C::*)(void* sender, Argument argument);

    EventHandler(C* target, Member targetMember) : object(target), member(targetMember) {}

    void notify(void* sender, Argument argument) override { (object->*member)(sender, argument); }

private:
    C* object;
    Member member;
};

/// An event. Notifies its handlers, which it does not own, in the order of subscription.
template <typename Argument> class CppEvent {
public:
    void Subscribe(IEventHandler<Argument>* handler) { handlers.emplace(nextKey++, handler); }

    void Unsubscribe(IEventHandler<Argument>* handler) {
        std::erase_if(handlers, [handler](const auto& entry) { return entry.second == handler; });
    }

    /// Notifies every handler. Handlers may subscribe and unsubscribe any handler meanwhile.
    void notify(void* sender, Argument argument) {
        for (auto entry = handlers.begin(); entry != handlers.end();) {
            const unsigned int key = entry->first;
            entry->second->notify(sender, argument);
            entry = handlers.upper_bound(key);
        }
    }

private:
    std::map<unsigned int, IEventHandler<Argument>*> handlers;
    unsigned int nextKey = 0;
};

} // namespace Utility
