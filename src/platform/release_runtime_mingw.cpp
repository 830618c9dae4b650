// The C++ runtime inside the DLL keeps a reserve for exceptions that are thrown when memory has run out, and
// never gives it back: a process that loads and frees the DLL again and again would lose it each time.
namespace __gnu_cxx {

void __freeres();

}  // namespace __gnu_cxx

namespace {

struct ReleaseRuntime {
    ~ReleaseRuntime() { __gnu_cxx::__freeres(); }
};

const ReleaseRuntime releaseAtUnload;

}  // namespace
