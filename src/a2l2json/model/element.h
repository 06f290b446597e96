// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string_view>

#include "a2l2json/model/keywords.h"
#include "a2l2json/model/kind_set.h"
#include "a2l2json/model/tree_store.h"

namespace a2l {

class TokenReader;

/// Revisions of the ASAP2 standard that keywords belong to: patch, minor and major from the
/// lowest byte up.
inline constexpr std::uint32_t kRevision160 = 0x00010600;
inline constexpr std::uint32_t kRevision171 = 0x00010701;

/// The `paramCount` of a keyword whose parameter list is open: it runs up to the next known
/// keyword or /end.
inline constexpr std::uint16_t kOpenParameterList = 65535;

/// One node of the tree that a file is read into. A plain VoA2LElement of kind 0 is the root;
/// every block and property is of a subclass named after its keyword.
///
/// A parent owns its children, and the root the whole tree; the memory itself lies in the
/// tree's store. Elements hold no other resource. NewTree makes a root in a store; an element that
/// was made without one (a plain root on the stack, say) gets its own when it first needs it.
/// Either way, DestroyTree ends the tree; Tree (model/tree.h) does it by itself.
///
/// Elements cannot be copied or moved, because their children and their parent point to them. One
/// thread at a time may use a tree; if no thread changes it, several may look at it.
class VoA2LElement {
 public:
  VoA2LElement() = default;
  VoA2LElement(const VoA2LElement&) = delete;
  VoA2LElement& operator=(const VoA2LElement&) = delete;

  // A file has millions of elements, and most of a tree is what every one of them has. So the
  // fields are as small as they can be, and the store is found by way of the parent.

  /// The block that holds this element; null for the root and for an element not yet attached. It
  /// is the way to the store: an element that is to leave its parent and still be read into gets
  /// the store first, by children.Attach.
  VoA2LElement* parent = nullptr;
  /// The elements inside this one, in file order.
  List<VoA2LElement*> children;
  /// Its keyword, by which KindToKeyword (model/keywords.h) gives the text.
  ElementKind kind = KIND_ROOT;
  /// Tokens that must be there before ParseParameters is called, or kOpenParameterList.
  std::uint16_t paramCount = 0;
  /// Set where a second run of values (the rows of a table) follows the fixed parameters.
  std::uint8_t hasMoreParameters : 1 = 0;
  /// Cleared when parameters of an object or of one of its properties were wrong.
  std::uint8_t valid : 1 = 1;

  /// The memory that this element and its tree lie in: that of its children, or else of the
  /// nearest element above that has some, which mostly is the parent's parent at the latest. Where
  /// there is none, a new one is made for the topmost element, which is the root of its tree.
  [[nodiscard]] TreeStore& Store() {
    TreeStore* const own = children.Store();
    return own != nullptr ? *own : StoreAbove();
  }

  /// Takes the parameters off the front of `text`, which holds them in file order without the
  /// keyword, and stores them; what is not used stays in `text`. False when they are wrong, by
  /// the rule of each class. The base takes nothing and succeeds.
  virtual bool ParseParameters(std::string_view& text);

  /// The same for the second run of values. The base succeeds where there is such a run.
  virtual bool ParseMoreParameters(std::string_view& text);

  /// Attaches `child` as the last child; null is refused. A child without a parent gets this one; a
  /// child of another parent, or of a kind that may not stand here, is refused with false (the
  /// parent link that it got stays).
  virtual bool AddChild(VoA2LElement* child);

  /// Writes this element and everything below it as A2L text, `level` times two blanks in front
  /// of each line. False, and nothing written, when `out` cannot take text (a file that is not
  /// open, whatever the type of the stream); true otherwise. The version line of a tree comes
  /// first: a root moves its ASAP2_VERSION to the front of its children, which is a change of the
  /// tree.
  virtual bool Write(int level, std::ostream& out);

  /// Number of tokens that ParseMoreParameters needs; in the base 0 where there is a second run
  /// and -1 where there is none.
  [[nodiscard]] virtual std::int32_t MoreParameterCount() const;

  /// Revision of the standard that the keyword belongs to; nothing depends on it.
  [[nodiscard]] virtual std::uint32_t Version() const { return kRevision160; }

  /// ParseParameters and ParseMoreParameters for the reader, which has the store at hand and has
  /// found tokens already. They take what they need off `tokens`.
  virtual bool TakeParameters(TreeStore& store, TokenReader& tokens);
  virtual bool TakeMoreParameters(TreeStore& store, TokenReader& tokens);

  [[nodiscard]] VoA2LElement* Parent() const { return parent; }
  [[nodiscard]] std::size_t ChildCount() const { return children.size(); }
  /// The child at `index`; null at and past the end.
  [[nodiscard]] VoA2LElement* Child(std::size_t index) const {
    return index < children.size() ? children[index] : nullptr;
  }
  [[nodiscard]] std::uint32_t ParamCount() const { return paramCount; }
  [[nodiscard]] bool HasMoreParameters() const { return hasMoreParameters != 0; }

 protected:
  /// What AddChild of every class does, with the kinds that the class accepts.
  bool Attach(VoA2LElement* child, const KindSet& accepted);

  /// The lines of this element alone: those before its children and the one after them. Write
  /// calls them on the way through the tree, which it walks without recursion.
  virtual void WriteOpening(int level, std::ostream& out) const;
  virtual void WriteClosing(int level, std::ostream& out) const;
  /// How much deeper than this element its children are written: 0 in the base, which has no
  /// lines of its own.
  [[nodiscard]] virtual int LevelsToChildren() const;
  /// False for the elements whose children do not appear in A2L text.
  [[nodiscard]] virtual bool WritesChildren() const;

 private:
  TreeStore& StoreAbove();
};

/// The children that the root accepts, and every element that states no others.
inline constexpr KindSet kBaseChildren = {ElementKind::PROJECT, ElementKind::A2ML_VERSION,
                                          ElementKind::ASAP2_VERSION, KIND_UNKNOWN};

/// True for the objects whose validity is tracked: AXIS_PTS, BLOB, CHARACTERISTIC, INSTANCE and
/// MEASUREMENT.
[[nodiscard]] bool IsCalibrationObject(const VoA2LElement& element);

/// A new, empty tree: its root, in a store of its own. Free it with DestroyTree.
[[nodiscard]] VoA2LElement* NewTree();

/// Releases `element` with everything below it; nothing for null. Called with the root of a
/// tree, it returns the tree's memory at once, with the root where NewTree made it (a root on the
/// stack is left without children); called with an element inside a tree, it takes the element
/// out of its parent's children, and its memory goes with the tree.
void DestroyTree(VoA2LElement* element);

}  // namespace a2l
