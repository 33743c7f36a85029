#pragma once

namespace jet::image {

/// A piece of work on an image, or on its tables, that is taken back unless kept.
template <typename Owner>
class Transaction {
 public:
  explicit Transaction(Owner& owner) : owner_(owner) { owner_.begin(); }
  ~Transaction() {
    if (!kept_) owner_.rollback();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void keep() {
    owner_.commit();
    kept_ = true;
  }

 private:
  Owner& owner_;
  bool kept_ = false;
};

}  // namespace jet::image
