#pragma once

#include <memory>
#include <utility>

namespace jet::sql {

/// Owner of one node of a tree. Never empty until moved from; two boxes are equal when their nodes are.
template <class Node>
class Box {
 public:
  Box(Node&& node) : node_(std::make_unique<Node>(std::move(node))) {}
  Node& operator*() { return *node_; }
  const Node& operator*() const { return *node_; }
  Node* operator->() { return node_.get(); }
  const Node* operator->() const { return node_.get(); }
  bool operator==(const Box& other) const { return *node_ == *other.node_; }

 private:
  std::unique_ptr<Node> node_;
};

}  // namespace jet::sql
