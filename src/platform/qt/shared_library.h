// Libraries that are loaded when they are needed.
#pragma once

#include <dlfcn.h>

namespace trameli {

/// A library and whether everything asked of it was there. It stays for good, since a thread of it
/// may outlive everything that is ours.
class SharedLibrary {
public:
    explicit SharedLibrary(const char* name) : handle_(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}

    template <typename Function>
    void Find(const char* name, Function& function) {
        function = handle_ ? reinterpret_cast<Function>(dlsym(handle_, name)) : nullptr;
        complete_ = complete_ && function;
    }
    bool IsComplete() const { return complete_; }

private:
    void* handle_;
    bool complete_ = true;
};

}  // namespace trameli
