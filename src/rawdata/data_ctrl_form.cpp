#include "rawdata/data_ctrl_form.h"

#include <algorithm>

#include "analysis/limit_checks.h"
#include "base/fault.h"
#include "catalog/catalog.h"

namespace rawdata {
namespace {

constexpr int kRangeTooSmall = 4;
constexpr int kRangeTooLarge = 5;
constexpr int kDefaultUnit = 314;

}  // namespace

DataCtrlForm::DataCtrlForm(ExposureSession& record, navigation::Desk& programDesk,
                           screen::Ports& formPorts)
    : SessionForm("DataCtrlForm", navigation::ScreenId::DataCtrl, "TabRaw", record, programDesk,
                  formPorts) {
  MenuSave.Click = [this] { VkrSave(); };
  DimCbo.Click = [this] {
    session.Unit = DimCbo.text;
    WindnrLbl.text = "3b";
    Rebind();
  };
  DimCbo.LostFocus = DimCbo.EnterKey = [this] {
    if (!DimCbo.touched) return;
    session.Unit = DimCbo.text;
    Rebind();
  };
  WireGrid();
  WireDetection();
}

void DataCtrlForm::WireDetection() {
  DetecChB.Click = [this] { DetecChB_Click(); };
  auto limit = [this](screen::Control& field, double& value) {
    field.GotFocus = [this, &field, &value] {
      field.text = ShownTrimmed(value);
      field.selectAll = true;
    };
    field.LostFocus = field.EnterKey = [this, &field] { LeaveDetectionLimit(field); };
  };
  limit(DetecLTxb, session.LOQ);
  limit(DetecUTxb, session.URR);
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
  GrowSeries(session);
  DataCtrlStatus();
  const bool inRange = RangeCheck();
  WindnrLbl.text = "15";
  session.TestTag.clear();
  TakeUnit();
  if (session.SortOrder == "Onbekend")
    SortValues(SampleCount(session), session.C, session.SortOrder);
  Rebind();
  if (inRange) return;
  rangeCheck_ = 0;
  Complain(session.MsgText, session.MsgTitle);
  desk.CloseAllData();
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
  session.InputState = 0;
  SampleStatistics();
  if (rangeCheck_ == 0 && session.InputState >= kRangeTooSmall) rangeCheck_ = session.InputState;
  ShowRange();
  session.IdentOk = true;
  session.DescOk = true;
  DetecChB.Show();
  if (rangeCheck_ == 0) return true;
  session.MsgText = LoadResString(rangeCheck_ == kRangeTooLarge ? 1510 : 1515);
  session.MsgTitle = LoadResString(1503);
  return false;
}

// GM and GSD of the whole sample. The labels tell whose they are: no longer the regression's.
void DataCtrlForm::SampleStatistics() {
  session.df = session.M - 1;
  LogMoments(session, session.GM, session.GSD);
  session.RegressionOn = false;
}

void DataCtrlForm::ShowRange() {
  RangeFrame.Show();
  C1Lbl.text = Shown(session.C[1]);
  CnLbl.text = Shown(session.C[static_cast<std::size_t>(SampleCount(session))]);
}

void DataCtrlForm::TakeUnit() {
  if (session.Unit.empty()) session.Unit = LoadResString(kDefaultUnit);
  DimCbo.text = session.Unit;
}

void DataCtrlForm::DataCtrlStatus() {
  Flags();
  session.TestTag.clear();
  TakeUnit();
  ScanSeries();
  MenuSave.enabled = !session.RawIncomplete;
  if (session.RawIncomplete) {
    session.DescOk = false;
    for (screen::Control* control : {&FrmDetec, &RangeFrame, &DetecChB}) control->Hide();
  } else {
    SortAndLog();
    SampleStatistics();
    session.DescOk = true;
    session.IdentOk = true;
  }
  menuTools.visible = session.DescOk;
  if (session.DescOk) {
    RangeFrame.Show();
    DetecChB.Show();
    menuExtrPol.enabled = session.LimitsOk;
  }
  StatusStrip();
  busyPointer = false;
}

// Looks for an unfilled row, and takes the width of the numbers. The last value scanned decides.
void DataCtrlForm::ScanSeries() {
  session.RawIncomplete = false;
  for (int i = 1; i <= SampleCount(session); ++i) {
    const double value = session.C[static_cast<std::size_t>(i)];
    if (value <= 0) {
      session.RawIncomplete = true;
      return;
    }
    const std::string text = GlobalBAS::GeneralText(value);
    const std::size_t exponent = text.find('E');
    session.SigDigits =
        static_cast<std::int16_t>(exponent == std::string::npos ? text.size() : exponent + 1);
  }
}

// Range, median and logarithms of the series; once more after it had to be sorted, so that nothing
// shown is older than the series.
void DataCtrlForm::SortAndLog() {
  const auto last = static_cast<std::ptrdiff_t>(SampleCount(session));
  for (int pass = 1; pass <= 2; ++pass) {
    RangeFrame.Show();
    DetecChB.ticked = session.DetecOn;
    if (session.DetecOn)
      DetectionOn();
    else
      DetectionOff();
    ShowRange();
    StoreMedian(session);
    const auto first = session.C.begin() + 1;
    session.SortOrder = std::is_sorted(first, first + last) ? "Ascending" : "Onbekend";
    for (std::size_t i = 1; i <= static_cast<std::size_t>(last); ++i)
      session.LnC[i] = Log(session.C[i]);
    if (session.SortOrder == "Ascending") return;
    SortValues(static_cast<int>(last), session.C, session.SortOrder);
  }
}

void DataCtrlForm::StatusStrip() {
  Tabs.Show();
  RebuildStrip();
  menuExtrPol.visible = session.LimitsOk;
}

void DataCtrlForm::DetecChB_Click() {
  if (DetecChB.ticked)
    DetectionOn();
  else
    DetectionOff();
  DegreesOfFreedom(session);
  Rebind();
}

void DataCtrlForm::DetectionOff() {
  session.DetecOn = false;
  FrmDetec.Hide();
  DegreesLbl.text.clear();
  session.FirstInRange = 1;
  session.LastInRange = static_cast<std::int16_t>(SampleCount(session));
  session.LOQ = 0.95 * session.C[1];
  session.URR = 1.05 * session.C[static_cast<std::size_t>(SampleCount(session))];
  DetecLTxb.text.clear();
  DetecUTxb.text.clear();
  session.NInRange = session.LastInRange;
  DegreesOfFreedom(session);
  SampleStatistics();
}

void DataCtrlForm::DetectionOn() {
  const auto count = static_cast<std::int16_t>(SampleCount(session));
  session.DetecOn = true;
  FrmDetec.Show();
  if (session.FirstInRange < 1) session.FirstInRange = 1;
  if (session.LastInRange < 1 || session.LastInRange > count) session.LastInRange = count;
  session.NInRange = static_cast<std::int16_t>(session.LastInRange + 1 - session.FirstInRange);
  if (session.LOQ == 0) session.LOQ = 0.95 * session.C[1];
  if (session.URR == 0) session.URR = 1.05 * session.C[static_cast<std::size_t>(count)];
  DegreesLbl.text = ShownTrimmed(session.NInRange);
  DetecLTxb.text = ShownTrimmed(session.LOQ);
  DetecUTxb.text = ShownTrimmed(session.URR);
}

void DataCtrlForm::LeaveDetectionLimit(screen::Control& field) {
  const bool lower = &field == &DetecLTxb;
  const double present = lower ? session.LOQ : session.URR;
  const double entered = field.touched ? GlobalBAS::ReadNumber(field.text) : present;
  if (lower)
    analysis::ControleOndergrens(session, entered);
  else
    analysis::ControleBovengrens(session, entered);
  if (!GlobalBAS::Trim(session.MsgText).empty()) {
    Complain(session.MsgText, session.MsgTitle);
    SetFocus(field);
  }
  DegreesOfFreedom(session);
  field.text = ShownTrimmed(lower ? session.LOQ : session.URR);
  DegreesLbl.text = ShownTrimmed(session.NInRange);
  Rebind();
}

}  // namespace rawdata
