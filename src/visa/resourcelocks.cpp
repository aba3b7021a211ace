#include "visa/resourcelocks.h"

#include "visa/deadline.h"

namespace selvane::visa {

ResourceLocks& processLocks()
{
    static ResourceLocks locks;
    return locks;
}

bool ResourceLocks::grantable(const State& state, const void* owner, ViAccessMode type,
                              const std::string& key) const
{
    if (state.exclusiveOwner && state.exclusiveOwner != owner) return false;
    if (type == VI_EXCLUSIVE_LOCK) {
        for (const auto& [holder, depth] : state.sharedDepth)
            if (holder != owner) return false;
        return true;
    }
    return state.sharedDepth.empty() || state.sharedDepth.count(owner) ||
           (!key.empty() && key == state.sharedKey);
}

ViStatus ResourceLocks::lock(const std::string& resource, const void* owner, ViAccessMode type,
                             ViUInt32 timeoutMs, std::string& key)
{
    if (type != VI_EXCLUSIVE_LOCK && type != VI_SHARED_LOCK) return VI_ERROR_INV_LOCK_TYPE;
    const Deadline deadline(timeoutMs);
    std::unique_lock guard(mutex_);
    while (!grantable(states_[resource], owner, type, key)) {
        if (deadline.infinite())
            changed_.wait(guard);
        else if (changed_.wait_for(guard, std::chrono::milliseconds(deadline.pollMs())) ==
                     std::cv_status::timeout &&
                 deadline.passed() && !grantable(states_[resource], owner, type, key)) {
            forgetIfIdle(resource);
            return VI_ERROR_TMO;
        }
    }
    State& state = states_[resource];
    if (type == VI_EXCLUSIVE_LOCK) {
        state.exclusiveOwner = owner;
        return ++state.exclusiveDepth > 1 ? VI_SUCCESS_NESTED_EXCLUSIVE : VI_SUCCESS;
    }
    if (state.sharedDepth.empty())
        state.sharedKey = key.empty() ? "selvane" + std::to_string(nextKey_++) : key;
    key = state.sharedKey;
    return ++state.sharedDepth[owner] > 1 ? VI_SUCCESS_NESTED_SHARED : VI_SUCCESS;
}

ViStatus ResourceLocks::unlock(const std::string& resource, const void* owner)
{
    std::lock_guard guard(mutex_);
    State& state = states_[resource];
    ViStatus status = VI_SUCCESS;
    if (state.exclusiveOwner == owner) {
        if (--state.exclusiveDepth == 0) state.exclusiveOwner = nullptr;
        if (state.exclusiveDepth > 0) status = VI_SUCCESS_NESTED_EXCLUSIVE;
    } else if (const auto it = state.sharedDepth.find(owner); it != state.sharedDepth.end()) {
        if (--it->second == 0) state.sharedDepth.erase(it);
        if (state.sharedDepth.count(owner)) status = VI_SUCCESS_NESTED_SHARED;
    } else {
        status = VI_ERROR_SESN_NLOCKED;
    }
    forgetIfIdle(resource);
    changed_.notify_all();
    return status;
}

bool ResourceLocks::allows(const std::string& resource, const void* owner)
{
    std::lock_guard guard(mutex_);
    const auto it = states_.find(resource);
    if (it == states_.end()) return true;
    const State& state = it->second;
    if (state.exclusiveOwner) return state.exclusiveOwner == owner;
    return state.sharedDepth.empty() || state.sharedDepth.count(owner);
}

ViAccessMode ResourceLocks::state(const std::string& resource)
{
    std::lock_guard guard(mutex_);
    const auto it = states_.find(resource);
    if (it == states_.end()) return VI_NO_LOCK;
    return it->second.exclusiveOwner ? VI_EXCLUSIVE_LOCK : VI_SHARED_LOCK;
}

void ResourceLocks::releaseAll(const std::string& resource, const void* owner)
{
    std::lock_guard guard(mutex_);
    State& state = states_[resource];
    if (state.exclusiveOwner == owner) {
        state.exclusiveOwner = nullptr;
        state.exclusiveDepth = 0;
    }
    state.sharedDepth.erase(owner);
    forgetIfIdle(resource);
    changed_.notify_all();
}

void ResourceLocks::forgetIfIdle(const std::string& resource)
{
    if (const auto it = states_.find(resource); it != states_.end() && it->second.idle()) states_.erase(it);
}

} // namespace selvane::visa
