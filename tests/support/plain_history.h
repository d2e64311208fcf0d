#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "screen/history.h"

namespace support {

// The user's steps in a plain list.
class PlainHistory final : public screen::History {
 public:
  void Push(std::unique_ptr<screen::Step> step) override {
    steps.resize(done);
    if (done > 0 && steps.back()->Absorb(*step)) {
      if (steps.back()->ChangesNothing()) steps.resize(--done);
      return;
    }
    steps.push_back(std::move(step));
    ++done;
  }
  std::string ToUndo() const override { return done > 0 ? steps[done - 1]->Words() : ""; }
  std::string ToRedo() const override { return done < steps.size() ? steps[done]->Words() : ""; }
  void Undo() override {
    if (done > 0) steps[--done]->Undo();
  }
  void Redo() override {
    if (done < steps.size()) steps[done++]->Redo();
  }
  void Clear() override {
    steps.clear();
    done = 0;
  }

  std::vector<std::unique_ptr<screen::Step>> steps;
  std::size_t done = 0;  // of them; the others were taken back
};

}  // namespace support
