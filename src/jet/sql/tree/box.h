#pragma once

#include <memory>
#include <utility>

namespace jet::sql {

/// Owner of one node of a tree; a copy has a node of its own, with all that hangs on it. Never empty until
/// moved from; two boxes are equal when their nodes are.
template <class Node>
class Box {
 public:
  Box(Node&& node) : node_(std::make_unique<Node>(std::move(node))) {}
  Box(const Box& other) : node_(std::make_unique<Node>(*other.node_)) {}
  Box(Box&& other) noexcept = default;
  Box& operator=(const Box& other) { return *this = Box(other); }
  Box& operator=(Box&& other) noexcept = default;
  ~Box() = default;

  Node& operator*() { return *node_; }
  const Node& operator*() const { return *node_; }
  Node* operator->() { return node_.get(); }
  const Node* operator->() const { return node_.get(); }
  bool operator==(const Box& other) const { return *node_ == *other.node_; }

 private:
  std::unique_ptr<Node> node_;
};

}  // namespace jet::sql
