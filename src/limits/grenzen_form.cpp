#include "limits/grenzen_form.h"

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "limits/steps.h"

namespace limits {
namespace {

// The blue that says: this value is still to be filled in.
constexpr screen::Colour kMissing{0, 0, 255};
constexpr int kDefaultUnit = 314;
constexpr int kSmallestOELV = 2160;
// What the combos show while nothing is stated: words that their lists don't hold.
constexpr int kUnits = 308;
constexpr int kReferencePeriod = 330;
constexpr int kDuration = 2322;

}  // namespace

GrenzenForm::GrenzenForm(Record& sessionRecord, navigation::Desk& programDesk,
                         screen::Ports& formPorts)
    : SessionForm("GrenzenForm", navigation::ScreenId::Grenzen, "TabGrenzen", sessionRecord,
                  programDesk, formPorts) {
  WireBoxes();
  WireSteps();
  WireCombos();
}

void GrenzenForm::WireBoxes() {
  for (screen::Control* box : {&AlphaTxb, &DeltaTxb}) {
    box->GotFocus = [this, box] {
      ShowFieldNumber(*box, "21");
      box->text = ShownTrimmed(box == &AlphaTxb ? session.U : session.D);
      box->selectAll = true;
    };
    box->LostFocus = box->EnterKey = [this, box] { LeavePercent(*box); };
  }
  VkrValTxB.GotFocus = [this] {
    ShowFieldNumber(VkrValTxB, "21");
    if (GlobalBAS::InRangeOELV(session.OELV)) VkrValTxB.text = ShownTrimmed(session.OELV);
    VkrValTxB.selectAll = true;
  };
  VkrValTxB.LostFocus = VkrValTxB.EnterKey = [this] { LeaveLimit(); };
}

void GrenzenForm::WireSteps() {
  Alpha_UpD.StepUp = [this] { StepPercent(AlphaTxb, 1); };
  Alpha_UpD.StepDown = [this] { StepPercent(AlphaTxb, -1); };
  Delta_UpD.StepUp = [this] { StepPercent(DeltaTxb, 1); };
  Delta_UpD.StepDown = [this] { StepPercent(DeltaTxb, -1); };
  VkrVal_UpD.StepUp = [this] { StepLimit(1); };
  VkrVal_UpD.StepDown = [this] { StepLimit(-1); };
}

void GrenzenForm::WireCombos() {
  auto wire = [this](screen::Control& combo, std::string Given::*field, const char* window) {
    combo.GotFocus = [this, &combo, window] {
      if (*window) ShowFieldNumber(combo, window);
      combo.selectAll = true;
    };
    combo.Click = [this, &combo, field] {
      combo.touched = true;
      LeaveText(combo, field);
    };
    combo.LostFocus = combo.EnterKey = [this, &combo, field] { LeaveText(combo, field); };
  };
  wire(DimCbo, &Given::Unit, "14");
  wire(DurationCmB, &Given::Duration, "20");
  wire(RefPerCmb, &Given::RefPeriod, "");
}

void GrenzenForm::Load() {
  caption = session.VersionText + LoadResString(2098);
  FillCombos();
  for (screen::Control* box : {&NameTxB, &SampSizTxB}) box->locked = true;
  VkrValLbl0.colour = kMissing;
}

void GrenzenForm::FillCombos() {
  DimCbo.text = LoadResString(kUnits);
  RefPerCmb.text = LoadResString(kReferencePeriod);
  DurationCmB.text = LoadResString(kDuration);
  for (int row : {310, 312, 314, 316, 318, 320, 322}) DimCbo.items.push_back(LoadResString(row));
  for (int row : {334, 336, 338, 340, 342, 344, 346, 348, 350, 352, 354})
    DurationCmB.items.push_back(LoadResString(row));
  RefPerCmb.items = DurationCmB.items;
  for (Own period : {Own::PeriodMonth, Own::PeriodQuarter, Own::PeriodYear, Own::PeriodWorkingLife,
                     Own::PeriodLife})
    RefPerCmb.items.emplace_back(OwnText(period));
}

void GrenzenForm::Activate() {
  BasisStatus();
  EnterOwnTab();
  WindnrLbl.text = session.Mode == DataMode::Raw ? "21a" : "21b";
  if (focusWanted) SetFocusQuietly(*focusWanted);
  IdentFrame.Show();
  NameTxB.text = session.Name;
  SampSizTxB.text = ShownTrimmed(session.M);
}

void GrenzenForm::BasisStatus() {
  JudgeLimits();
  ShowState();
}

// A limit value that is out of range gives way to the default; whoever stated it is told.
void GrenzenForm::JudgeLimits() {
  const std::optional<double> stated = session.OELV;
  Flags();
  if (stated && stated != session.OELV)
    Report({.did = Did::LimitRefused, .what = ShownTrimmed(stated)});
}

void GrenzenForm::ShowState() {
  NameTxB.text = session.Name;
  SampSizTxB.text = ShownTrimmed(session.M);
  flow.TestTag = Extrapolation::None;
  if (session.Unit.empty())
    record.Change([](Given& given) { given.Unit = LoadResString(kDefaultUnit); });
  ShowValues();
  ColourLabels();
  ShowMissing();
  StatusStrip();
}

void GrenzenForm::ShowValues() {
  DimCbo.text = session.Unit;
  DimLbl2.text = session.Unit;
  RefPerCmb.text = session.RefPeriod.empty() ? LoadResString(kReferencePeriod) : session.RefPeriod;
  DurationCmB.text = session.Duration.empty() ? LoadResString(kDuration) : session.Duration;
  AlphaTxb.text = ShownTrimmed(session.U);
  DeltaTxb.text = ShownTrimmed(session.D);
  VkrValTxB.text = ShownTrimmed(session.OELV);
}

// The message that says what is missing, and the focus on the first bad entry.
void GrenzenForm::ShowMissing() {
  BoodschFrame.visible = !session.LimitsOk;
  BoodschLbl.text = session.CR + LoadResString(2170) + session.CR + LoadResString(2175);
  menuExtrPol.enabled = session.LimitsOk;
  if (session.LimitsOk) return;
  if (!GlobalBAS::InRangeOELV(session.OELV))
    SetFocus(VkrValTxB);
  else if (!GlobalBAS::InRangeU(session.U))
    SetFocus(AlphaTxb);
  else if (!GlobalBAS::InRangeD(session.D))
    SetFocus(DeltaTxb);
}

void GrenzenForm::StatusStrip() {
  RebuildStrip();
  menuExtrPol.visible = session.LimitsOk;
}

void GrenzenForm::ColourLabels() {
  auto colour = [](screen::Control& label, bool missing) {
    label.colour = missing ? std::optional(kMissing) : std::nullopt;
  };
  colour(VkrValLbl0, !session.limitStated);
  colour(VkrValLbl1, session.RefPeriod.empty());
  colour(DimLbl0, session.Unit.empty());
  colour(DimLbl2, session.Unit.empty());
  colour(DurationLbl, session.Duration.empty());
  colour(AlphaLbl0, false);
  colour(AlphaLbl1, false);
}

void GrenzenForm::LeavePercent(screen::Control& box) {
  box.text = GlobalBAS::Trim(box.text);
  const bool coverage = &box == &AlphaTxb;
  double value = coverage ? session.U : session.D;
  const auto check = coverage ? GlobalBAS::CheckU : GlobalBAS::CheckD;
  check(flow, EntryOf(box), value, Notifier());
  record.Change([&](Given& given) { (coverage ? given.U : given.D) = value; });
  box.touched = false;
  const bool refused = session.InputState != 0;
  BasisStatus();
  if (refused) SetFocus(box);
}

// An empty box keeps the limit as it is, yet marks it as missing.
void GrenzenForm::LeaveLimit() {
  VkrValTxB.text = GlobalBAS::Trim(VkrValTxB.text);
  if (VkrValTxB.text.empty()) {
    VkrValTxB.touched = false;
    record.Change([](Given& given) { given.limitStated = false; });
    ColourLabels();
    return;
  }
  std::optional<double> OELV = session.OELV;
  GlobalBAS::CheckOELV(flow, EntryOf(VkrValTxB), OELV, Notifier());
  record.Change([&](Given& given) {
    given.OELV = OELV;
    given.limitStated = true;
  });
  VkrValTxB.touched = false;
  const bool refused = session.InputState != 0;
  BasisStatus();
  if (refused) SetFocus(VkrValTxB);
}

void GrenzenForm::LeaveText(screen::Control& combo, std::string Given::*field) {
  if (!combo.touched) return;
  // Of these texts the unit is a part of the series: changing it can be taken back.
  Edit(OwnText(Own::StepUnit, {combo.text}),
       [&] { record.Change([&](Given& given) { given.*field = combo.text; }); });
  combo.touched = false;
  DimLbl2.text = session.Unit;
  ColourLabels();
}

// A text that is still being typed counts first.
void GrenzenForm::StepPercent(screen::Control& box, int direction) {
  if (box.touched) LeavePercent(box);
  double Given::*const field = &box == &AlphaTxb ? &Given::U : &Given::D;
  record.Change([&](Given& given) { given.*field = limits::StepPercent(given.*field, direction); });
  box.text = ShownTrimmed(session.*field);
  box.touched = false;
}

void GrenzenForm::StepLimit(int direction) {
  if (VkrValTxB.touched) LeaveLimit();
  const LimitStep step = StepOELV(session.OELV, direction);
  record.Change([&](Given& given) {
    given.OELV = step.value;
    given.limitStated = true;
  });
  if (step.atBound) flow.MsgText = LoadResString(kSmallestOELV);
  ColourLabels();
  VkrValTxB.text = ShownTrimmed(session.OELV);
  VkrValTxB.touched = false;
}

// The field that is still being typed in is left first. Leaving a number runs the flags itself; a
// second run would take the default that stands in for a refused limit as a valid one.
void GrenzenForm::BeforeTabClick() {
  LeaveText(DimCbo, &Given::Unit);
  LeaveText(RefPerCmb, &Given::RefPeriod);
  LeaveText(DurationCmB, &Given::Duration);
  bool flagged = false;
  for (screen::Control* box : {&AlphaTxb, &DeltaTxb}) {
    if (!box->touched) continue;
    LeavePercent(*box);
    flagged = true;
  }
  if (VkrValTxB.touched) {
    LeaveLimit();
    flagged = flagged || !VkrValTxB.text.empty();
  }
  if (!flagged) BasisStatus();
}

}  // namespace limits
