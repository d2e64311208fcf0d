#pragma once

#include <QUndoStack>

#include "screen/history.h"

namespace ui {

// The steps of the user on the toolkit's own stack.
class UndoHistory final : public screen::History {
 public:
  void Push(std::unique_ptr<screen::Step> step) override;
  std::string ToUndo() const override;
  std::string ToRedo() const override;
  void Undo() override { stack_.undo(); }
  void Redo() override { stack_.redo(); }
  void Clear() override { stack_.clear(); }

 private:
  QUndoStack stack_;
};

}  // namespace ui
