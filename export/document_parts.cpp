// SPDX-License-Identifier: MIT
#include "export/exporter.h"

namespace a2l {
namespace {

template <class Element>
void KeepFirst(const Element*& place, const VoA2LElement& element) {
  if (place == nullptr) place = static_cast<const Element*>(&element);
}

void ReadHeader(DocumentParts& parts, const VoA2LElement& header) {
  KeepFirst(parts.header, header);
  for (const VoA2LElement* child : header.children) {
    if (child->kind == Kind::VERSION) KeepFirst(parts.headerVersion, *child);
    if (child->kind == Kind::PROJECT_NO) KeepFirst(parts.headerProjectNo, *child);
  }
}

void ReadProject(DocumentParts& parts, const VoA2LElement& project) {
  KeepFirst(parts.project, project);
  for (const VoA2LElement* child : project.children) {
    if (child->kind == Kind::HEADER) ReadHeader(parts, *child);
    if (child->kind == Kind::MODULE) {
      parts.modules.push_back(static_cast<const VoA2LElementModule*>(child));
    }
  }
}

}  // namespace

DocumentParts::DocumentParts(const VoA2LElement& root) {
  for (const VoA2LElement* child : root.children) {
    if (child->kind == Kind::A2ML_VERSION) KeepFirst(a2mlVersion, *child);
    if (child->kind == Kind::ASAP2_VERSION) KeepFirst(asap2Version, *child);
    if (child->kind == Kind::PROJECT) ReadProject(*this, *child);
  }
}

}  // namespace a2l
