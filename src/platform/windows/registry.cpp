// The system's registry.
#include "platform/registry.h"

#include <windows.h>

#include <vector>

#include "platform/windows/wide.h"

namespace platform {

namespace {

/// An open key, or none.
class Key {
 public:
  Key(RegistryRoot root, std::string_view name) {
    const auto parent = reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
    if (::RegOpenKeyExW(parent, windows::wide(name).c_str(), 0, KEY_READ, &key_) != ERROR_SUCCESS)
      key_ = nullptr;
  }
  ~Key() {
    if (key_) ::RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  explicit operator bool() const { return key_ != nullptr; }

  RegistryValue value(std::string_view name) const {
    std::vector<char> buffer(1024);
    DWORD type = REG_NONE, length = 0;
    LSTATUS result = query(name, type, length, buffer);
    if (result == ERROR_MORE_DATA) {
      buffer.resize(length);
      result = query(name, type, length, buffer);
    }
    if (result != ERROR_SUCCESS) return {};
    return {type, {buffer.data(), length}};
  }

 private:
  LSTATUS query(std::string_view name, DWORD& type, DWORD& length, std::vector<char>& buffer) const {
    length = static_cast<DWORD>(buffer.size());
    return ::RegQueryValueExW(key_, windows::wide(name).c_str(), nullptr, &type,
                              reinterpret_cast<BYTE*>(buffer.data()), &length);
  }

  HKEY key_ = nullptr;
};

std::string textOf(const std::string& data) {
  std::wstring text(data.size() / sizeof(wchar_t), L'\0');
  data.copy(reinterpret_cast<char*>(text.data()), text.size() * sizeof(wchar_t));
  return windows::narrow(text);
}

}  // namespace

std::optional<RegistryValue> readRegistry(RegistryRoot root, std::string_view key, std::string_view name) {
  const Key open(root, key);
  if (!open) return std::nullopt;
  RegistryValue value = open.value(name);
  if (value.type == RegistryText || value.type == RegistryExpandText || value.type == RegistryMultiText)
    value.data = textOf(value.data);
  return value;
}

}  // namespace platform
