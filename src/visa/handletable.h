#pragma once
// Handles for VISA objects: numbers never 0, each object maybe owned by
// another (a session or find list by its resource manager), and removing an
// owner removes what it owns.

#include "visa/visa.h"

#include <map>
#include <mutex>
#include <optional>
#include <vector>

namespace selvane::visa {

template <typename Value> class HandleTable {
  public:
    ViObject add(ViObject owner, Value value)
    {
        std::lock_guard lock(mutex_);
        while (next_ == VI_NULL || slots_.count(next_))
            ++next_;
        slots_.emplace(next_, Slot{owner, std::move(value)});
        return next_++;
    }

    // Runs `use` on the handle's value under the table's lock; false when there is no such handle.
    template <typename Use> bool visit(ViObject handle, Use&& use)
    {
        std::lock_guard lock(mutex_);
        const auto it = slots_.find(handle);
        if (it == slots_.end()) return false;
        use(it->second.value);
        return true;
    }

    // The values taken out, so the caller can let them go outside the lock; empty for an unknown handle.
    std::optional<std::vector<Value>> remove(ViObject handle)
    {
        std::lock_guard lock(mutex_);
        if (!slots_.count(handle)) return std::nullopt;
        std::vector<Value> removed;
        std::erase_if(slots_, [&](auto& item) {
            const bool goes = item.first == handle || item.second.owner == handle;
            if (goes) removed.push_back(std::move(item.second.value));
            return goes;
        });
        return removed;
    }

  private:
    struct Slot {
        ViObject owner;
        Value value;
    };

    std::mutex mutex_;
    std::map<ViObject, Slot> slots_;
    ViObject next_ = 1;
};

} // namespace selvane::visa
