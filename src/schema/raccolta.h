// A collection of records that is asked by name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/text.h"
#include "runtime/error.h"

namespace schema {

/// An ordered collection of records, counted from 1, some of them under a key of their own. Keys are compared
/// without regard to case.
template <typename Record>
class Raccolta {
 public:
  /// Adds a new record whose Key is `key`, under the collection key `sKey` unless that is empty. Error 457 if
  /// a record has that key already.
  Record& Add(const std::string& key, const std::string& sKey = "") {
    if (!sKey.empty() && trova(sKey) < voci_.size())
      throw runtime::Error(457, "schema", "Chiave già presente nell'insieme: " + sKey);
    chiavi_.push_back(sKey);
    voci_.push_back(std::make_unique<Record>());
    voci_.back()->Key = key;
    return *voci_.back();
  }
  /// Error 9 beyond the last record, 5 for a key that no record has.
  Record& Item(std::int32_t indice) const { return *voci_[posizione(indice)]; }
  Record& Item(std::string_view chiave) const { return *voci_[posizione(chiave)]; }
  std::int32_t Count() const { return static_cast<std::int32_t>(voci_.size()); }
  /// Errors as Item.
  template <typename Indice>
  void Remove(const Indice& indice) {
    const auto posto = static_cast<std::ptrdiff_t>(posizione(indice));
    voci_.erase(voci_.begin() + posto);
    chiavi_.erase(chiavi_.begin() + posto);
  }
  /// NewEnum: pointers to the records, in order.
  auto begin() const { return voci_.begin(); }
  auto end() const { return voci_.end(); }

 private:
  std::size_t trova(std::string_view chiave) const {
    std::size_t posto = 0;
    while (posto < chiavi_.size() && (chiavi_[posto].empty() || !common::StessoTesto(chiavi_[posto], chiave)))
      ++posto;
    return posto;
  }
  std::size_t posizione(std::int32_t indice) const {
    if (indice < 1 || indice > Count())
      throw runtime::Error(runtime::SubscriptOutOfRange, "schema",
                           "Indice non compreso nell'insieme: " + std::to_string(indice));
    return static_cast<std::size_t>(indice - 1);
  }
  std::size_t posizione(std::string_view chiave) const {
    const std::size_t posto = trova(chiave);
    if (posto == voci_.size())
      throw runtime::Error(runtime::InvalidCall, "schema",
                           "Chiave non presente nell'insieme: " + std::string(chiave));
    return posto;
  }

  std::vector<std::unique_ptr<Record>> voci_;
  std::vector<std::string> chiavi_;  // empty: the record has none
};

}  // namespace schema
