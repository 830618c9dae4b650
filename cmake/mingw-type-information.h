#pragma once

#include <typeinfo>

// g++ for Windows exports every type information of a source whose first one it meets inside an exported class.
// Included ahead of each source of the library, this makes sure that it has met every kind before.
namespace SMBIOS::TypeInformation {

struct Plain {
    virtual ~Plain() = default;
};
struct OtherPlain {
    virtual ~OtherPlain() = default;
};
struct Derived : Plain {};
struct DerivedTwice : Plain, OtherPlain {};

inline void MeetEveryKind() {
    (void)typeid(Plain);
    (void)typeid(Derived);
    (void)typeid(DerivedTwice);
}

}  // namespace SMBIOS::TypeInformation
