// LateLibrary: a shared library that is loaded when a picture of its format is read. Linked, the larger ones would make
// the start of the reader slower for every format.
#pragma once
#include <dlfcn.h>

namespace velara::decode {

class LateLibrary {
  public:
    /// file is the library's name with its version, which the build takes from the headers' own library.
    explicit LateLibrary(const char* file) : handle_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {}
    /// The function of the library, or of one that it needs; null when there is none.
    template <class Function> Function function(const char* name)
    {
        void* found = handle_ ? dlsym(handle_, name) : nullptr;
        complete_ &= found != nullptr;
        return reinterpret_cast<Function>(found);
    }
    /// True when the library and all functions asked for are there.
    bool complete() const { return complete_; }

  private:
    void* handle_; // never closed: its functions may be called at exit
    bool complete_ = true;
};

} // namespace velara::decode

/// A member that calls the function of the same name in the member `late`.
#define VELARA_LATE(name) decltype(&::name) name = late.function<decltype(&::name)>(#name)
