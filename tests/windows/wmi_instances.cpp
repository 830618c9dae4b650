#include "tests/windows/wmi_instances.h"

#include <memory>
#include <stdexcept>
#include <string>

#include "tests/windows/windows_headers.h"

// After windows.h, which its lean form keeps from including it.
#include <wbemidl.h>

namespace SMBIOS::Tests {

namespace {

void Check(HRESULT result, const char* action) {
    if (FAILED(result)) {
        throw std::runtime_error(std::string(action) + " failed with " +
                                 std::to_string(static_cast<unsigned long>(result)));
    }
}

class ComLibrary {
public:
    ComLibrary() { Check(::CoInitializeEx(nullptr, COINIT_MULTITHREADED), "CoInitializeEx"); }
    ComLibrary(const ComLibrary&) = delete;
    ComLibrary& operator=(const ComLibrary&) = delete;
    ~ComLibrary() { ::CoUninitialize(); }
};

struct Release {
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <class Interface>
using ComPointer = std::unique_ptr<Interface, Release>;

struct FreeText {
    void operator()(BSTR text) const noexcept { ::SysFreeString(text); }
};
using Text = std::unique_ptr<OLECHAR, FreeText>;

Text MakeText(std::string_view utf8) {
    const auto size = static_cast<int>(utf8.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    Text text(::SysAllocStringLen(nullptr, static_cast<UINT>(length)));
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.get(), length);
    return text;
}

std::string ToUtf8(BSTR text) {
    const auto length = static_cast<int>(::SysStringLen(text));
    std::string utf8(static_cast<std::size_t>(length) * 3, '\0');
    const int size = ::WideCharToMultiByte(
        CP_UTF8, 0, text, length, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(size));
    return utf8;
}

/// A value as WMI hands it over.
class Variant {
public:
    Variant() noexcept { ::VariantInit(&value_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { ::VariantClear(&value_); }

    [[nodiscard]] VARIANT* Address() noexcept { return &value_; }
    [[nodiscard]] bool IsNull() const noexcept { return value_.vt == VT_NULL; }
    [[nodiscard]] bool IsTrue() const noexcept { return value_.boolVal != VARIANT_FALSE; }

    [[nodiscard]] std::string ToText() {
        Variant text;
        Check(::VariantChangeType(&text.value_, &value_, 0, VT_BSTR), "VariantChangeType");
        return ToUtf8(text.value_.bstrVal);
    }

private:
    VARIANT value_;
};

/// The value as PowerShell shows it: 64-bit numbers come as texts, and are numbers again.
nlohmann::ordered_json ToJson(Variant& value, CIMTYPE type) {
    if (value.IsNull()) {
        return nullptr;
    }
    switch (type) {
        case CIM_BOOLEAN:
            return value.IsTrue();
        case CIM_SINT8:
        case CIM_SINT16:
        case CIM_SINT32:
        case CIM_SINT64:
            return std::stoll(value.ToText());
        case CIM_UINT8:
        case CIM_UINT16:
        case CIM_UINT64:
            return std::stoull(value.ToText());
        case CIM_UINT32:  // comes as a signed number of 32 bits
            return static_cast<std::uint32_t>(std::stoll(value.ToText()));
        default:
            return value.ToText();
    }
}

WmiInstance ReadProperties(IWbemClassObject& object) {
    WmiInstance instance = WmiInstance::object();
    Check(object.BeginEnumeration(WBEM_FLAG_NONSYSTEM_ONLY), "BeginEnumeration");
    for (;;) {
        BSTR name = nullptr;
        Variant value;
        CIMTYPE type = CIM_EMPTY;
        const HRESULT result = object.Next(0, &name, value.Address(), &type, nullptr);
        const Text nameOwner(name);
        Check(result, "Next");
        if (result != WBEM_S_NO_ERROR) {
            return instance;
        }
        instance[ToUtf8(name)] = ToJson(value, type);
    }
}

ComPointer<IWbemServices> Connect() {
    void* locator = nullptr;
    Check(::CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator, &locator),
          "CoCreateInstance");
    const ComPointer<IWbemLocator> locatorOwner(static_cast<IWbemLocator*>(locator));
    IWbemServices* services = nullptr;
    Check(locatorOwner->ConnectServer(
              MakeText("root\\cimv2").get(), nullptr, nullptr, nullptr, 0, nullptr, nullptr, &services),
          "ConnectServer");
    return ComPointer<IWbemServices>(services);
}

ComPointer<IEnumWbemClassObject> Ask(IWbemServices& services, std::string_view query) {
    constexpr LONG kForwardOnly = WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY;
    IEnumWbemClassObject* answer = nullptr;
    Check(services.ExecQuery(MakeText("WQL").get(), MakeText(query).get(), kForwardOnly, nullptr, &answer),
          "ExecQuery");
    return ComPointer<IEnumWbemClassObject>(answer);
}

}  // namespace

std::vector<WmiInstance> QueryWmi(std::string_view query) {
    const ComLibrary comLibrary;
    // Refused when it was called before, and then the earlier choice holds.
    ::CoInitializeSecurity(nullptr,
                           -1,
                           nullptr,
                           nullptr,
                           RPC_C_AUTHN_LEVEL_DEFAULT,
                           RPC_C_IMP_LEVEL_IMPERSONATE,
                           nullptr,
                           EOAC_NONE,
                           nullptr);
    const ComPointer<IWbemServices> services = Connect();
    const ComPointer<IEnumWbemClassObject> answer = Ask(*services, query);
    std::vector<WmiInstance> instances;
    for (;;) {
        IWbemClassObject* object = nullptr;
        ULONG count = 0;
        Check(answer->Next(static_cast<LONG>(WBEM_INFINITE), 1, &object, &count), "Next");
        if (count == 0) {
            return instances;
        }
        const ComPointer<IWbemClassObject> objectOwner(object);
        instances.push_back(ReadProperties(*object));
    }
}

}  // namespace SMBIOS::Tests
