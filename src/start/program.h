#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "navigation/desk.h"
#include "screen/form.h"
#include "screen/ports.h"
#include "session/record.h"

namespace start {

// The whole program without a window: the record, the screens, and the ways between them. A
// window toolkit binds its widgets to Forms() and follows Shown().
class Program final : public navigation::Desk {
 public:
  // `coefficientFolders`: where the coefficient files are looked for besides the current directory.
  Program(screen::Ports& ports, std::vector<std::string> coefficientFolders);
  ~Program() override;

  // Every field of the record, for session scripts.
  ExposureSession& Session();
  const Record& SessionRecord() const;
  const std::vector<screen::Form*>& Forms() const;
  screen::Form* FormByName(const std::string& name) const;

  // The start sequence up to the opening message. Call it once the controls carry their
  // design-time ids. Nothing that fails in it is told or stops it.
  void Start();

  // The screen that is now shown.
  screen::Form& Shown() const;
  // Called after a different screen is shown (before its activation runs).
  std::function<void(screen::Form&)> onShow;

  // Brings what the shown screen tells of the record up to date: its live line, and which tabs are
  // closed. Whoever runs handlers calls it behind each of them.
  void TellState();

  // Title of the window, without the unsaved mark.
  std::string Title() const;

  // The user closes the window: true when the program may end.
  bool MayUnload();
  // The program ends, and nobody can be asked: what would be lost without a file of its own is
  // kept.
  void EndUnasked();
  // Set by MenuExit's Yes: the window toolkit ends its loop.
  bool EndRequested() const;

  // navigation::Desk
  void Open(navigation::ScreenId target) override;
  bool Unsaved() const override;
  void MarkSaved(const std::string& file) override;
  const std::vector<navigation::ExtrapolationMenu>& Extrapolations() const override;
  void RunExtrapolation(Extrapolation tag) override;
  std::string PictureObstacle() const override;
  void ShowPicture() override;
  void ClosePicture() override;
  bool ShowsPicture() const override;
  void Done(const std::string& words, const GivenSeries& before, bool goesOn) override;
  void Undo() override;
  void Redo() override;
  std::string ToUndo() const override;
  std::string ToRedo() const override;
  void ForgetSteps() override;
  void Output(screen::Form& form, navigation::OutputAction action) override;
  navigation::OutputOffer Offered(navigation::OutputAction action) const override;
  bool MayDropSeries() override;
  bool CloseAllData() override;
  bool SaveSeries() override;
  void Exit() override;

 private:
  std::string ExitAdvice() const;
  bool SeriesMayGo();
  void KeepSeries();
  // Shows the form in place of the present screen, which stays as it is.
  void ShowInstead(screen::Form& form);
  void AddReport(screen::Form& form);
  void ShowRestored(const LastAction& action);

  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace start
