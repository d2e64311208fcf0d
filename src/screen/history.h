#pragma once

#include <memory>
#include <string>

namespace screen {

// Something that the user has done and can take back.
class Step {
 public:
  virtual ~Step() = default;
  // What it was, as a menu names it: "paste of 10 outcomes".
  virtual const std::string& Words() const = 0;
  virtual void Undo() = 0;
  virtual void Redo() = 0;
  // Takes `next` into itself where that goes on with its movement; false where it doesn't.
  virtual bool Absorb(const Step& next) = 0;
  // What it has absorbed has led back to where it began.
  virtual bool ChangesNothing() const = 0;
};

// The steps of the user, without a limit. A port: the window has its toolkit's.
class History {
 public:
  virtual ~History() = default;
  // A step that is done; what was taken back before it is gone. One that goes on with the last step
  // becomes part of it, and both are gone when they have led back to where the last one began.
  virtual void Push(std::unique_ptr<Step> step) = 0;
  // The words of the step that Undo takes back, and of the one that Redo does again; empty for
  // none.
  virtual std::string ToUndo() const = 0;
  virtual std::string ToRedo() const = 0;
  virtual void Undo() = 0;
  virtual void Redo() = 0;
  virtual void Clear() = 0;
};

}  // namespace screen
