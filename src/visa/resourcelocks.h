#pragma once
// Locks on resources among the sessions of this process. An exclusive lock
// belongs to one session; a shared lock to every session that presents its
// key. A locked resource refuses I/O from sessions without the lock. Locks
// nest: each lock needs its unlock.

#include "visa/visa.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <string>

namespace selvane::visa {

class ResourceLocks {
  public:
    // `owner` identifies the session; `key` in: the requested shared key (may be empty), out: the key
    // granted.
    ViStatus lock(const std::string& resource, const void* owner, ViAccessMode type, ViUInt32 timeoutMs,
                  std::string& key);
    ViStatus unlock(const std::string& resource, const void* owner);
    // Whether `owner` may use the resource now.
    bool allows(const std::string& resource, const void* owner);
    // VI_NO_LOCK, VI_EXCLUSIVE_LOCK or VI_SHARED_LOCK, as the resource is locked.
    ViAccessMode state(const std::string& resource);
    // Everything `owner` holds, when its session closes.
    void releaseAll(const std::string& resource, const void* owner);

  private:
    struct State {
        const void* exclusiveOwner = nullptr;
        int exclusiveDepth = 0;
        std::string sharedKey;
        std::map<const void*, int> sharedDepth;
        bool idle() const { return !exclusiveOwner && sharedDepth.empty(); }
    };

    bool grantable(const State& state, const void* owner, ViAccessMode type, const std::string& key) const;
    void forgetIfIdle(const std::string& resource);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::string, State> states_;
    unsigned nextKey_ = 1;
};

ResourceLocks& processLocks();

} // namespace selvane::visa
