#pragma once

#include <set>
#include <string>
#include <vector>

#include "tests/house/source_tree.h"

namespace house {

// docs/glossary.md, as far as it explains names: what stands in back-quotes in the first column of
// its tables. `-Lbl` is an ending, `Lbl-` a beginning, all else a word.
struct Glossary {
  std::set<std::string> words;
  std::set<std::string> beginnings;
  std::set<std::string> endings;
};

Glossary ReadGlossary(const std::string& page);

// The names of the controls that a screen's header declares.
std::vector<std::string> ControlNames(const SourceFile& header);

// What is left of a control's name without index, number, beginning and ending; empty where that
// is all of it.
std::string Word(const std::string& control, const Glossary& glossary);

}  // namespace house
