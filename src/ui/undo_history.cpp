#include "ui/undo_history.h"

#include <utility>

#include "ui/text.h"

namespace ui {
namespace {

// The toolkit does again whatever is put on its stack; the screens put there what is done.
class StepOnStack final : public QUndoCommand {
 public:
  explicit StepOnStack(std::unique_ptr<screen::Step> step)
      : QUndoCommand(Shown(step->Words())), step_(std::move(step)) {}

  void undo() override { step_->Undo(); }
  void redo() override {
    if (std::exchange(done_, false)) return;
    step_->Redo();
  }
  int id() const override { return kSteps; }
  bool mergeWith(const QUndoCommand* other) override {
    const screen::Step& next = *static_cast<const StepOnStack*>(other)->step_;
    if (!step_->Absorb(next)) return false;
    setText(Shown(step_->Words()));
    setObsolete(step_->ChangesNothing());
    return true;
  }

 private:
  static constexpr int kSteps = 1;

  std::unique_ptr<screen::Step> step_;
  bool done_ = true;
};

}  // namespace

void UndoHistory::Push(std::unique_ptr<screen::Step> step) {
  stack_.push(new StepOnStack(std::move(step)));
}

std::string UndoHistory::ToUndo() const { return Typed(stack_.undoText()); }

std::string UndoHistory::ToRedo() const { return Typed(stack_.redoText()); }

}  // namespace ui
