#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/file/errors.h"
#include "runtime/error.h"

namespace jet::dao {

/// What a collection stands on.
template <typename T>
class CollectionSource {
 public:
  virtual ~CollectionSource() = default;
  /// source::Fields and so on, for errors.
  virtual const char* title() const = 0;
  virtual std::size_t count() const = 0;
  virtual T at(std::size_t position) const = 0;  // below count()
  virtual std::optional<std::size_t> find(std::string_view name) const = 0;
  /// One after the other; overridden where one look gives them all.
  virtual std::vector<T> all() const {
    std::vector<T> objects;
    for (std::size_t i = 0; i < count(); ++i) objects.push_back(at(i));
    return objects;
  }
  virtual int missingError() const { return ItemNotFound; }
  virtual void append(const T&) const { refuse(); }
  virtual void remove(std::size_t) const { refuse(); }

 protected:
  /// Error 3219: this collection can't be changed.
  [[noreturn]] void refuse() const {
    throw runtime::Error(InvalidOperation, title(),
                         "Operazione non valida: l'insieme non può essere modificato");
  }
};

/// Objects of one kind in their order. It always shows what there is; walking it with `for` shows what there
/// was when the walk began, so that objects may be deleted on the way.
template <typename T>
class Collection {
 public:
  explicit Collection(std::shared_ptr<const CollectionSource<T>> source) : source_(std::move(source)) {}

  std::size_t Count() const { return source_->count(); }
  /// By position from 0, or by name. Error 3265 (a property: 3270) if there is none.
  T Item(std::size_t position) const {
    if (position >= Count()) missing(std::to_string(position));
    return source_->at(position);
  }
  T Item(std::string_view name) const { return source_->at(require(name)); }
  bool contains(std::string_view name) const { return source_->find(name).has_value(); }
  /// The object stands for what is stored from now on.
  void Append(const T& object) const { source_->append(object); }
  /// Error 3265 if there is none.
  void Delete(std::string_view name) const { source_->remove(require(name)); }
  /// Kept for the suite's calls.
  void Refresh() const {}

  auto begin() const { return Walk(*this); }
  auto end() const { return std::default_sentinel; }

 private:
  class Walk {
   public:
    explicit Walk(const Collection& collection) : objects_(collection.source_->all()) {}
    const T& operator*() const { return objects_[position_]; }
    Walk& operator++() { return ++position_, *this; }
    bool operator==(std::default_sentinel_t) const { return position_ == objects_.size(); }

   private:
    std::vector<T> objects_;
    std::size_t position_ = 0;
  };

  std::size_t require(std::string_view name) const {
    const auto position = source_->find(name);
    if (!position) missing(std::string(name));
    return *position;
  }
  [[noreturn]] void missing(const std::string& what) const {
    throw runtime::Error(source_->missingError(), source_->title(),
                         "Elemento inesistente nell'insieme: " + what);
  }

  std::shared_ptr<const CollectionSource<T>> source_;
};

}  // namespace jet::dao
