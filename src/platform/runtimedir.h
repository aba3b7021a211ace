#pragma once
// Without XDG_RUNTIME_DIR (a service, a container, ssh without a session) Qt
// warns on every start. Both programs call this before their application object
// exists, so stderr keeps our own messages.

// Points XDG_RUNTIME_DIR at a private folder of ours when it is unset.
void SetPrivateRuntimeDir();
