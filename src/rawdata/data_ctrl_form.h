#pragma once

#include "navigation/session_form.h"
#include "rawdata/pasted_table.h"
#include "rawdata/raw_file.h"

namespace rawdata {

// Outcomes beyond the sample size go with the first edit or save.
void CutSeries(Given& given);

// The data control screen: the series in an editable table, its range, unit and detection range.
struct DataCtrlForm final : navigation::SessionForm {
  DataCtrlForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control MenuAddRow{*this, screen::Kind::Menu, "MenuAddRow"};
  screen::Control MenuDeleteRow{*this, screen::Kind::Menu, "MenuDeleteRow"};
  screen::Control MenuPaste{*this, screen::Kind::Menu, "MenuPaste"};

  screen::Grid DBGridVkr{*this, "DBGridVkr"};

  screen::Control SampleFrame{*this, screen::Kind::Frame, "SampleFrame"};
  screen::Control SampSzLbl0{*this, screen::Kind::Label, "SampSzLbl(0)"};
  screen::Control SampSzLbl{*this, screen::Kind::Label, "SampSzLbl"};
  screen::Control UnitLbl{*this, screen::Kind::Label, "UnitLbl"};
  screen::Control DimCbo{*this, screen::Kind::ComboBox, "DimCbo"};

  screen::Control RangeFrame{*this, screen::Kind::Frame, "RangeFrame"};
  screen::Control C1Lbl0{*this, screen::Kind::Label, "C1Lbl(0)"};
  screen::Control C1Lbl{*this, screen::Kind::Label, "C1Lbl"};
  screen::Control CnLbl0{*this, screen::Kind::Label, "CnLbl(0)"};
  screen::Control CnLbl{*this, screen::Kind::Label, "CnLbl"};

  screen::Control DetecChB{*this, screen::Kind::CheckBox, "DetecChB"};
  screen::Control FrmDetec{*this, screen::Kind::Frame, "FrmDetec"};
  screen::Control DetcLbl0{*this, screen::Kind::Label, "DetcLbl(0)"};
  screen::Control DetecLTxb{*this, screen::Kind::TextBox, "DetecLTxb"};
  screen::Control DetcLbl1{*this, screen::Kind::Label, "DetcLbl(1)"};
  screen::Control DetecUTxb{*this, screen::Kind::TextBox, "DetecUTxb"};
  screen::Control DegreesLbl0{*this, screen::Kind::Label, "DegreesLbl(0)"};
  screen::Control DegreesLbl{*this, screen::Kind::Label, "DegreesLbl"};

  void Load() override;
  void Activate() override;
  void Restored() override;

  void DataCtrlStatus();
  // Asks for a file and writes the series to it; true when that is done.
  bool VkrSave();
  // Lets the grid ask for its rows anew.
  void Rebind();
  // Tells how the opened file was understood; a typed series has no notes.
  void TellReading(const ReadingNotes* notes);

 private:
  void WireGrid();
  void WireDetection();

  void ShowSeries();
  bool RangeCheck();
  void ShowRange();
  void TakeUnit();
  void LeaveUnit();
  // Puts the whole sample's GM, GSD and df in force again.
  void SampleStatistics();
  void ShowDetection();
  void StatusStrip();

  void DetecChB_Click();
  void DetectionOff();
  void DetectionOn();
  void LeaveDetectionLimit(screen::Control& field);
  void TakeDetectionLimit(screen::Control& field, double entered);
  std::string LimitAdvice(bool lower) const;
  void ShowNewRange();
  // Changes what was given, and tells what the checks of the range had to say. The cursor and the
  // selection, which mean rows as the change leaves them, go with their outcomes to where the order
  // puts those.
  void ChangeSeries(const std::function<void(Given&)>& change);

  // The same as one step of the user, which `words` name, with all that a committed row brings.
  void EditRows(const std::string& words, const std::function<void(Given&)>& change);
  void FollowOrder(const std::vector<double>& edited);
  std::vector<double> Outcomes() const;

  std::string CellText(int row, int column);
  std::string OperatorOf(double value) const;
  // `stands`: what the row holds and keeps; 0 for nothing.
  bool Refuses(double value, double stands);
  bool HasRoomFor(int rows);
  void TellEntry(int row, double value, const std::string& text);
  bool WriteCell(int row, int column, const std::string& text);
  bool AddRow(const std::string& text);
  void DeleteRows(const std::vector<int>& selected);
  void CutBeyond(const std::vector<int>& selected);
  void CommitRow();

  // data_ctrl_paste.cpp
  void PasteRows(int row, const std::string& text);
  // The outcomes of the text, asked about where it needs an answer. Nothing after a refusal, and
  // what there was to say has been told.
  std::optional<PastedColumn> Understood(const std::string& text);
  void GoBehindPaste(int row);
  void TellPaste(const PastedColumn& column);
  std::string CopyRows(const std::vector<int>& rows);

  // Asks when another program has changed the file at `path` since the series was read from it or
  // saved to it.
  bool MayOverwrite(const std::string& path);

  // The file that holds the series, as it was when this program last read or wrote it.
  std::optional<files::FileMark> mark_;
  std::string markedPath_;
  std::vector<double> shown_;  // the outcomes that the table was last told of
  int rangeCheck_ = 0;         // 0 none, 4 range too small, 5 range too large
};

}  // namespace rawdata
