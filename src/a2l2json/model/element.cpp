// SPDX-License-Identifier: MIT
#include "a2l2json/model/element.h"

#include <algorithm>
#include <memory>
#include <ostream>
#include <vector>

#include "a2l2json/model/file_stream.h"

namespace a2l {
namespace {

// Puts the version line first, as the standard asks of a file, whatever the order of reading.
// Of several, the last one read comes first.
void MoveVersionsToFront(List<VoA2LElement*>& children) {
  const auto isVersion = [](const VoA2LElement* child) {
    return child->kind == ElementKind::ASAP2_VERSION;
  };
  std::reverse(children.begin(),
               std::stable_partition(children.begin(), children.end(), isVersion));
}

}  // namespace

bool VoA2LElement::ParseParameters(std::string_view& /*text*/) { return true; }

bool VoA2LElement::ParseMoreParameters(std::string_view& /*text*/) { return HasMoreParameters(); }

bool VoA2LElement::TakeParameters(TreeStore& /*store*/, TokenReader& /*tokens*/) { return true; }

bool VoA2LElement::TakeMoreParameters(TreeStore& /*store*/, TokenReader& /*tokens*/) {
  return HasMoreParameters();
}

bool VoA2LElement::AddChild(VoA2LElement* child) { return Attach(child, kBaseChildren); }

std::int32_t VoA2LElement::MoreParameterCount() const { return HasMoreParameters() ? 0 : -1; }

TreeStore& VoA2LElement::StoreAbove() {
  VoA2LElement* top = this;
  while (top->children.Store() == nullptr && top->parent != nullptr) top = top->parent;
  if (top->children.Store() == nullptr) {
    auto store = std::make_unique<TreeStore>();
    top->children.Attach(*store);
    store.release()->root = top;  // released by DestroyTree
  }
  return *top->children.Store();
}

bool VoA2LElement::Attach(VoA2LElement* child, const KindSet& accepted) {
  if (child == nullptr) return false;
  if (child->parent == nullptr) child->parent = this;
  if (child->parent != this || !accepted.Contains(child->kind)) return false;
  children.PushBack(Store(), child);
  return true;
}

void VoA2LElement::WriteOpening(int /*level*/, std::ostream& /*out*/) const {}
void VoA2LElement::WriteClosing(int /*level*/, std::ostream& /*out*/) const {}
int VoA2LElement::LevelsToChildren() const { return 0; }
bool VoA2LElement::WritesChildren() const { return true; }

bool VoA2LElement::Write(int level, std::ostream& out) {
  if (!TakesText(out)) return false;
  // A file may nest its blocks as deep as it is long, so the way down is kept here and not on
  // the call stack.
  struct Visit {
    VoA2LElement* element;
    int level;
    std::size_t nextChild;
  };
  std::vector<Visit> path;
  const auto enter = [&](VoA2LElement* element, int elementLevel) {
    if (element->LevelsToChildren() == 0) MoveVersionsToFront(element->children);
    element->WriteOpening(elementLevel, out);
    path.push_back({element, elementLevel, 0});
  };
  enter(this, level);
  while (!path.empty()) {
    Visit& visit = path.back();
    VoA2LElement* child =
        visit.element->WritesChildren() ? visit.element->Child(visit.nextChild++) : nullptr;
    if (child != nullptr) {
      enter(child, visit.level + visit.element->LevelsToChildren());
    } else {
      visit.element->WriteClosing(visit.level, out);
      path.pop_back();
    }
  }
  return true;
}

bool IsCalibrationObject(const VoA2LElement& element) {
  constexpr KindSet kObjects = {ElementKind::AXIS_PTS, ElementKind::BLOB,
                                ElementKind::CHARACTERISTIC, ElementKind::INSTANCE,
                                ElementKind::MEASUREMENT};
  return kObjects.Contains(element.kind);
}

VoA2LElement* NewTree() {
  auto store = std::make_unique<TreeStore>();
  auto* root = store->Create<VoA2LElement>();
  store.release()->root = root;
  return root;
}

void DestroyTree(VoA2LElement* element) {
  if (element == nullptr) return;
  if (element->parent != nullptr) element->parent->children.Remove(element);
  TreeStore* const store = element->children.Store();
  if (store != nullptr && store->root == element) {
    element->children.Detach();
    delete store;
  }
}

}  // namespace a2l
