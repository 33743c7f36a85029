// Rows as lines with tabs, or as objects of JSON.
#include "apps/jetsql/output.h"

#include <algorithm>
#include <cctype>
#include <nlohmann/json.hpp>
#include <ostream>

#include "apps/jetsql/values.h"

namespace jetsql {
namespace {

class TabbedOutput : public Output {
 public:
  explicit TabbedOutput(std::ostream& stream) : stream_(stream) {}

  void columns(const std::vector<std::string>& names) override {
    separate();
    for (std::size_t i = 0; i < names.size(); ++i) stream_ << (i ? "\t" : "") << escaped(names[i]);
    stream_ << "\n";
  }
  void row(const std::vector<runtime::Variant>& values) override {
    for (std::size_t i = 0; i < values.size(); ++i) {
      stream_ << (i ? "\t" : "");
      stream_ << (values[i].isText() ? escaped(plainText(values[i])) : plainText(values[i]));
    }
    stream_ << "\n";
  }
  void text(const std::string& text) override {
    separate();
    stream_ << text;
  }

 private:
  void separate() {
    if (begun_) stream_ << "\n";
    begun_ = true;
  }

  std::ostream& stream_;
  bool begun_ = false;
};

using Json = nlohmann::ordered_json;

/// Doubles hold this many decimal digits exactly.
bool fitsDouble(const std::string& digits) {
  return std::count_if(digits.begin(), digits.end(), [](unsigned char c) { return std::isdigit(c); }) <= 15;
}

Json jsonValue(const runtime::Variant& value) {
  using Kind = runtime::VariantKind;
  switch (value.kind()) {
    case Kind::Empty:
    case Kind::Null:
      return nullptr;
    case Kind::Boolean:
      return value.toBoolean();
    case Kind::Byte:
    case Kind::Integer:
    case Kind::Long:
      return value.toLong();
    case Kind::Single:
      return Json::parse(plainText(value));  // the float's digits, not those of its double
    case Kind::Double:
      return value.toDouble();
    case Kind::Currency:
    case Kind::Decimal: {
      const std::string digits = plainText(value);
      if (!fitsDouble(digits)) return digits;
      return Json::parse(digits);
    }
    case Kind::Date:
    case Kind::Text:
    case Kind::Bytes:
      break;
  }
  return plainText(value);
}

class JsonOutput : public Output {
 public:
  explicit JsonOutput(std::ostream& stream) : stream_(stream) {}

  void columns(const std::vector<std::string>& names) override { names_ = names; }
  void row(const std::vector<runtime::Variant>& values) override {
    Json object = Json::object();
    for (std::size_t i = 0; i < values.size(); ++i) object[names_[i]] = jsonValue(values[i]);
    write(object);
  }
  void text(const std::string& text) override { write(Json{{"text", text}}); }

 private:
  void write(const Json& object) {
    stream_ << object.dump(-1, ' ', false, Json::error_handler_t::replace) << "\n";
  }

  std::ostream& stream_;
  std::vector<std::string> names_;
};

}  // namespace

std::unique_ptr<Output> tabbedOutput(std::ostream& stream) {
  return std::make_unique<TabbedOutput>(stream);
}
std::unique_ptr<Output> jsonOutput(std::ostream& stream) {
  return std::make_unique<JsonOutput>(stream);
}

}  // namespace jetsql
