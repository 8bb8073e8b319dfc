#pragma once

#include <dlfcn.h>

/// The function of a shared library that a function of the test program stands in front of, by its
/// mangled name. A member function takes its object as first argument.
template <typename Function>
Function* libraryFunction(const char* mangledName) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, mangledName));
}
