// The pages of an index, written from sorted entries.
#include "jet/file/index/index_tree.h"

#include <algorithm>

#include "jet/file/page/data_page.h"
#include "jet/file/page/format.h"
#include "jet/file/page/put_bytes.h"

namespace jet::file {

namespace {

using Entry = std::span<const std::byte>;

std::size_t pageRoom() {
  return Jet4.pageSize - Jet4.indexEntriesAt;
}

/// A page of the tree that is still to be written.
struct Node {
  std::size_t first = 0, last = 0;  // leaf: entries; node: pages of the level below; both included
  std::size_t lastEntry = 0;        // last one of its last leaf
  std::size_t prefix = 0;           // bytes that all entries share and only the first one stores
  std::uint32_t page = 0;
};
using Level = std::vector<Node>;

/// Bytes that the keys of both have in common in front.
std::size_t commonPrefix(Entry a, Entry b) {
  const std::size_t limit = std::min(a.size(), b.size()) - IndexEntries::PointerLength;
  std::size_t length = 0;
  while (length < limit && a[length] == b[length]) ++length;
  return length;
}

/// As many entries from `first` as a leaf holds, in the short form where the long one doesn't hold them.
Node fillLeaf(const IndexEntries& entries, std::size_t first) {
  Node leaf{.first = first, .last = first, .lastEntry = first};
  std::size_t total = entries[first].size();
  std::size_t common = total - IndexEntries::PointerLength;
  for (std::size_t i = first + 1; i < entries.size(); ++i) {
    const Entry entry = entries[i];
    const std::size_t shared = std::min(common, commonPrefix(entries[first], entry));
    if (total + entry.size() - shared * (i - first) > pageRoom()) break;
    total += entry.size();
    common = shared;
    leaf.last = leaf.lastEntry = i;
  }
  leaf.prefix = total > pageRoom() ? common : 0;
  return leaf;
}

Level leafLevel(const IndexEntries& entries) {
  Level leaves;
  for (std::size_t next = 0; next < entries.size(); next = leaves.back().last + 1)
    leaves.push_back(fillLeaf(entries, next));
  return leaves;
}

/// Groups the pages of a level under nodes. A node has an entry for each child but the last, so at least two
/// children; where the last child would be left alone, the group before gives one away.
Level nodeLevel(const IndexEntries& entries, const Level& children) {
  Level nodes;
  for (std::size_t next = 0; next < children.size(); next = nodes.back().last + 1) {
    Node node{.first = next, .last = next};
    std::size_t total = 0;
    while (node.last + 1 < children.size()) {
      total += entries[children[node.last].lastEntry].size() + ChildLength;
      if (total > pageRoom()) break;
      ++node.last;
    }
    nodes.push_back(node);
  }
  if (nodes.size() > 1 && nodes.back().first == nodes.back().last) {
    Node& before = nodes[nodes.size() - 2];
    if (before.last - before.first >= 2) nodes.back().first = before.last--;
  }
  for (Node& node : nodes) node.lastEntry = children[node.last].lastEntry;
  return nodes;
}

/// One page being put together.
class IndexPage {
 public:
  IndexPage(PageKind kind, std::uint32_t owner, std::size_t level) : bytes_(Jet4.pageSize) {
    putU8(&bytes_[0], static_cast<std::size_t>(kind));
    putU8(&bytes_[1], 1);
    putU32(&bytes_[OwnerAt], owner);
    putU8(&bytes_[Jet4.indexLevelAt], level);
  }

  void link(std::uint32_t previous, std::uint32_t next) {
    putU32(&bytes_[Jet4.indexPreviousAt], previous);
    putU32(&bytes_[Jet4.indexNextAt], next);
  }
  void setTail(std::uint32_t child) { putU32(&bytes_[Jet4.indexTailAt], child); }
  void setPrefix(std::size_t length) { putU16(&bytes_[Jet4.indexPrefixAt], length); }
  void append(Entry part) {
    std::ranges::copy(part, bytes_.begin() + static_cast<std::ptrdiff_t>(Jet4.indexEntriesAt + used_));
    used_ += part.size();
  }
  /// Marks that an entry ends here.
  void endEntry() { bytes_[Jet4.indexBitmapAt + used_ / 8] |= static_cast<std::byte>(1 << used_ % 8); }
  std::span<const std::byte> finish() {
    putU16(&bytes_[FreeBytesAt], pageRoom() - used_);
    return bytes_;
  }

 private:
  std::vector<std::byte> bytes_;
  std::size_t used_ = 0;
};

void writeLeaves(const IndexEntries& entries, const Level& leaves, std::uint32_t owner, PageOutput& out) {
  for (std::size_t i = 0; i < leaves.size(); ++i) {
    const Node& leaf = leaves[i];
    IndexPage page(PageKind::IndexLeaf, owner, 0);
    page.link(i == 0 ? 0 : leaves[i - 1].page, i + 1 == leaves.size() ? 0 : leaves[i + 1].page);
    page.setPrefix(leaf.prefix);
    for (std::size_t entry = leaf.first; entry <= leaf.last; ++entry) {
      page.append(entries[entry].subspan(entry == leaf.first ? 0 : leaf.prefix));
      page.endEntry();
    }
    out.write(leaf.page, page.finish());
  }
}

void writeNode(const IndexEntries& entries, const Node& node, const Level& children, IndexPage& page) {
  for (std::size_t i = node.first; i < node.last; ++i) {
    const std::uint32_t child = children[i].page;
    page.append(entries[children[i].lastEntry]);
    for (const unsigned shift : {24u, 16u, 8u, 0u}) {
      const std::byte byte{static_cast<std::uint8_t>(child >> shift & 0xFF)};
      page.append({&byte, 1});
    }
    page.endEntry();
  }
  page.setTail(children[node.last].page);
}

/// Nodes are linked with those under the same parent.
void writeNodes(const IndexEntries& entries, const std::vector<Level>& levels, std::size_t level,
                std::uint32_t owner, PageOutput& out) {
  const Level& nodes = levels[level];
  const auto writeOne = [&](std::size_t i, std::uint32_t previous, std::uint32_t next) {
    IndexPage page(PageKind::IndexNode, owner, level);
    page.link(previous, next);
    writeNode(entries, nodes[i], levels[level - 1], page);
    out.write(nodes[i].page, page.finish());
  };
  if (level + 1 == levels.size()) return writeOne(0, 0, 0);
  for (const Node& parent : levels[level + 1])
    for (std::size_t i = parent.first; i <= parent.last; ++i)
      writeOne(i, i == parent.first ? 0 : nodes[i - 1].page, i == parent.last ? 0 : nodes[i + 1].page);
}

}  // namespace

IndexTree writeIndexTree(const IndexEntries& entries, std::uint32_t owner, PageOutput& out,
                         const TakePage& take) {
  IndexTree tree;
  if (entries.size() == 0) {
    tree.root = take();
    tree.pages = {tree.root};
    out.write(tree.root, IndexPage(PageKind::IndexLeaf, owner, 0).finish());
    return tree;
  }
  std::vector<Level> levels{leafLevel(entries)};
  while (levels.back().size() > 1) levels.push_back(nodeLevel(entries, levels.back()));
  for (Level& level : levels)
    for (Node& node : level) tree.pages.push_back(node.page = take());
  tree.root = levels.back().front().page;
  writeLeaves(entries, levels.front(), owner, out);
  for (std::size_t level = 1; level < levels.size(); ++level) writeNodes(entries, levels, level, owner, out);
  return tree;
}

}  // namespace jet::file
