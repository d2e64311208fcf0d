#include "rawdata/data_ctrl_form.h"

#include <algorithm>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "rawdata/rows.h"

namespace rawdata {
namespace {

constexpr int kRangeTooSmall = 4;
constexpr int kRangeTooLarge = 5;
constexpr int kDefaultUnit = 314;

}  // namespace

DataCtrlForm::DataCtrlForm(Record& sessionRecord, navigation::Desk& programDesk,
                           screen::Ports& formPorts)
    : SessionForm("DataCtrlForm", navigation::ScreenId::DataCtrl, "TabRaw", sessionRecord,
                  programDesk, formPorts) {
  stepMenus.emplace(*this);
  DimCbo.Click = [this] {
    LeaveUnit();
    WindnrLbl.text = "3b";
  };
  DimCbo.LostFocus = DimCbo.EnterKey = [this] {
    if (DimCbo.touched) LeaveUnit();
  };
  WireGrid();
  WireDetection();
}

void DataCtrlForm::WireDetection() {
  DetecChB.Click = [this] { DetecChB_Click(); };
  auto limit = [this](screen::Control& field, double Given::*value) {
    field.GotFocus = [this, &field, value] {
      field.text = ShownTrimmed(session.*value);
      field.selectAll = true;
    };
    field.LostFocus = field.EnterKey = [this, &field] { LeaveDetectionLimit(field); };
  };
  limit(DetecLTxb, &Given::LOQ);
  limit(DetecUTxb, &Given::URR);
}

void DataCtrlForm::Load() {
  DimCbo.text = LoadResString(308);
  for (int row : {310, 312, 314, 316, 318, 320, 322}) DimCbo.items.push_back(LoadResString(row));
  DBGridVkr.columns = {{LoadResString(600), 700, false},
                       {LoadResString(602), 700, false},
                       {LoadResString(604), 2700, true},
                       {LoadResString(606), 1000, false}};
  FrmDetec.Hide();
}

void DataCtrlForm::Activate() {
  EnterOwnTab();
  DataCtrlStatus();
  const bool inRange = RangeCheck();
  WindnrLbl.text = "15";
  Rebind();
  if (inRange) {
    DBGridVkr.GoTo(FirstToFill(Outcomes()));
    SetFocus(DBGridVkr);
    return;
  }
  rangeCheck_ = 0;
  Complain(session.MsgText, session.MsgTitle);
  desk.CloseAllData();
}

// The estimates that were in force then are so again. What has come, or come back, is selected.
void DataCtrlForm::Restored() {
  EnterOwnTab();
  Flags();
  ShowSeries();
  const std::vector<double> before = shown_;
  Rebind();
  DBGridVkr.selectedRows = RowsThatCame(before, shown_);
  if (DBGridVkr.selectedRows.empty())
    DBGridVkr.GoTo(std::min(DBGridVkr.currentRow, DBGridVkr.rowCount));
  else
    DBGridVkr.currentRow = DBGridVkr.selectedRows.front();
}

// Whether the series has a range that a lognormal distribution can be fitted to; the complaint is
// left in MsgText.
bool DataCtrlForm::RangeCheck() {
  rangeCheck_ = 0;
  if (session.RawIncomplete) return true;
  const double lowest = session.C[1];
  const double highest = session.C[static_cast<std::size_t>(SampleCount(session))];
  if (lowest * 1E+10 < highest) rangeCheck_ = kRangeTooLarge;
  if ((lowest + highest) * 5E-11 > highest - lowest) rangeCheck_ = kRangeTooSmall;
  if (rangeCheck_ == 0 && session.spread != Spread::Fine)
    rangeCheck_ = session.spread == Spread::None ? kRangeTooSmall : kRangeTooLarge;
  if (rangeCheck_ == 0) return true;
  flow.MsgText = LoadResString(rangeCheck_ == kRangeTooLarge ? 1510 : 1515);
  flow.MsgTitle = LoadResString(1503);
  return false;
}

void DataCtrlForm::SampleStatistics() {
  flow.InputState = 0;
  const bool regression = session.RegressionOn;
  record.Evaluate(Estimates::WholeSample);
  if (regression) Report({.did = Did::EstimatesPutBack});
}

void DataCtrlForm::ShowRange() {
  RangeFrame.Show();
  C1Lbl.text = Shown(session.C[1]);
  CnLbl.text = Shown(session.C[static_cast<std::size_t>(SampleCount(session))]);
}

void DataCtrlForm::LeaveUnit() {
  Edit(OwnText(Own::StepUnit, {DimCbo.text}), [this] {
    record.Change([this](Given& given) { given.Unit = DimCbo.text; });
    Rebind();
  });
  DimCbo.touched = false;
}

void DataCtrlForm::TakeUnit() {
  if (session.Unit.empty())
    record.Change([](Given& given) { given.Unit = LoadResString(kDefaultUnit); });
  DimCbo.text = session.Unit;
}

void DataCtrlForm::DataCtrlStatus() {
  Flags();
  if (!session.RawIncomplete) SampleStatistics();
  ShowSeries();
}

void DataCtrlForm::ShowSeries() {
  flow.TestTag = Extrapolation::None;
  TakeUnit();
  if (session.RawIncomplete) {
    for (screen::Control* control : {&FrmDetec, &RangeFrame, &DetecChB}) control->Hide();
  } else {
    ShowDetection();
    ShowRange();
    record.AcceptSeries();
    DetecChB.Show();
  }
  menuTools.visible = session.DescOk;
  if (session.DescOk) menuExtrPol.enabled = session.LimitsOk;
  StatusStrip();
}

void DataCtrlForm::ShowDetection() {
  DetecChB.ticked = session.DetecOn;
  FrmDetec.visible = session.DetecOn;
  DegreesLbl.text = session.DetecOn ? ShownTrimmed(session.NInRange) : std::string();
  DetecLTxb.text = session.DetecOn ? ShownTrimmed(session.LOQ) : std::string();
  DetecUTxb.text = session.DetecOn ? ShownTrimmed(session.URR) : std::string();
}

void DataCtrlForm::StatusStrip() {
  Tabs.Show();
  RebuildStrip();
  menuExtrPol.visible = session.LimitsOk;
}

void DataCtrlForm::DetecChB_Click() {
  Edit(OwnText(DetecChB.ticked ? Own::StepRangeOn : Own::StepRangeOff), [this] {
    if (DetecChB.ticked)
      DetectionOn();
    else
      DetectionOff();
    ShowNewRange();
  });
}

void DataCtrlForm::ShowNewRange() {
  ShowDetection();
  record.AcceptSeries();
  StatusStrip();
  Rebind();
}

void DataCtrlForm::DetectionOff() {
  record.Change([](Given& given) {
    given.DetecOn = false;
    given.inForce = Estimates::WholeSample;
  });
}

void DataCtrlForm::DetectionOn() {
  record.Change([](Given& given) {
    given.DetecOn = true;
    given.NInRange = static_cast<std::int16_t>(given.LastInRange + 1 - given.FirstInRange);
    given.inForce = Estimates::RangeDegrees;
  });
}

void DataCtrlForm::LeaveDetectionLimit(screen::Control& field) {
  // Looking at a limit changes nothing, and what was refused has been told.
  if (!field.touched) return;
  const double entered = GlobalBAS::ReadNumber(field.text);
  const bool lower = &field == &DetecLTxb;
  const auto words = [&](double limit) {
    return OwnText(lower ? Own::StepLOQ : Own::StepURR, {GlobalBAS::FileText(limit)});
  };
  // A refused limit gives way to another one, which is then what the step has brought.
  std::string step = words(entered);
  Edit(step, [&] {
    TakeDetectionLimit(field, entered);
    step = words(lower ? session.LOQ : session.URR);
  });
}

// What can be entered, and what stands, with all its digits: the field shows it rounded.
std::string DataCtrlForm::LimitAdvice(bool lower) const {
  const double least =
      lower ? DefaultLOQ(session) : NearestOutcome(session, session.FirstInRange + 2);
  const double most =
      lower ? NearestOutcome(session, session.LastInRange - 2) : DefaultURR(session);
  const auto text = [](double limit) { return GlobalBAS::FileText(limit); };
  const std::string now = OwnText(Own::NowStands, {text(lower ? session.LOQ : session.URR)});
  if (SampleCount(session) < 3 || least > most) return now;
  return OwnText(Own::AllowedRange, {text(least), text(most)}) + " " + now;
}

void DataCtrlForm::TakeDetectionLimit(screen::Control& field, double entered) {
  const bool lower = &field == &DetecLTxb;
  LimitComplaint complaint;
  record.Change([&](Given& given) {
    complaint = lower ? ControleOndergrens(given, entered) : ControleBovengrens(given, entered);
    given.inForce = Estimates::RangeDegrees;
  });
  flow.MsgText = complaint.MsgText;
  flow.MsgTitle = complaint.MsgTitle;
  if (!GlobalBAS::Trim(session.MsgText).empty()) {
    Complain(session.MsgText, session.MsgTitle, LimitAdvice(lower));
    SetFocus(field);
  }
  ShowNewRange();
}

}  // namespace rawdata
