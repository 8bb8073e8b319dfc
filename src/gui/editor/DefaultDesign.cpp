#include "gui/editor/DefaultDesign.h"

#include "gui/editor/DesignTree.h"
#include "project/ProjectReader.h"
#include "store/DefaultValues.h"
#include "store/Manager.h"

namespace TVR::GUI {

DefaultDesign::DefaultDesign(const Data::Manager& store)
    : store_(store), values_(Data::defaultValues(store.keys()).value_or(ParameterValues())) {}

QVariant DefaultDesign::valueOf(const QtProperty& property) const {
  const int id = DesignTree::idOf(&property);
  const EditorRow* const row = editorRow(id);
  if (property.isGroup() || !row || row->isResult || !values_.contains(id))
    return {};
  ProjectOverlay project(store_);
  project.set(id, values_.value(id));
  return treeValue(*row, project);
}

} // namespace TVR::GUI
