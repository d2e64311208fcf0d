#pragma once

#include <array>
#include <deque>
#include <string>

#include "analysis/regression.h"
#include "navigation/session_form.h"
#include "plots/limit_lines.h"
#include "plots/listing.h"
#include "plots/paper.h"
#include "screen/picture.h"

namespace plots {

// The plot screen: the outcomes on probability paper, the line through them, its fit, and the range
// of the outcomes that it follows. Each drawing rewrites the statistics of the record.
struct PlotForm final : navigation::SessionForm {
  PlotForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control menuSavePicture{*this, screen::Kind::Menu, "menuSavePicture"};
  screen::Control MenuReg{*this, screen::Kind::Menu, "MenuReg"};
  screen::Control MenuLowLim{*this, screen::Kind::Menu, "MenuLowLim"};
  screen::Control MenuUpLim{*this, screen::Kind::Menu, "MenuUpLim"};
  screen::Control MenuRemDetec{*this, screen::Kind::Menu, "MenuRemDetec"};
  screen::Control MenuTrans{*this, screen::Kind::Menu, "MenuTrans"};
  screen::Control MenuDubLog{*this, screen::Kind::Menu, "MenuDubLog"};
  screen::Control MenuLog{*this, screen::Kind::Menu, "MenuLog"};
  screen::Control MenuSqrt{*this, screen::Kind::Menu, "MenuSqrt"};
  screen::Control MenuUntransf{*this, screen::Kind::Menu, "MenuUntransf"};
  screen::Control MenuSqrd{*this, screen::Kind::Menu, "MenuSqrd"};
  screen::Control MenuExp{*this, screen::Kind::Menu, "MenuExp"};
  screen::Control MenuRecip{*this, screen::Kind::Menu, "MenuRecip"};
  screen::Control MenuRedraw{*this, screen::Kind::Menu, "MenuRedraw"};
  screen::Control MemuOtherPlots{*this, screen::Kind::Menu, "MemuOtherPlots"};
  screen::Control memuVALKOplot{*this, screen::Kind::Menu, "memuVALKOplot"};
  screen::Control MenuInvPlot{*this, screen::Kind::Menu, "MenuInvPlot"};
  screen::Control MenuAnnexEPlot{*this, screen::Kind::Menu, "MenuAnnexEPlot"};
  screen::Control MenuDevelop{*this, screen::Kind::Menu, "MenuDevelop"};
  // In no menu: its key alone turns the developer mode on and off.
  screen::Control MenuDevMode{*this, screen::Kind::Menu, "MenuDevMode"};

  screen::Picture PicPlot{*this, "PicPlot"};
  screen::Control VScLowLimit{*this, screen::Kind::ScrollBar, "VScLowLimit"};
  screen::Control VScUplimit{*this, screen::Kind::ScrollBar, "VScUplimit"};
  screen::Control HScLowLimit{*this, screen::Kind::ScrollBar, "HScLowLimit"};
  screen::Control HScUplimit{*this, screen::Kind::ScrollBar, "HScUplimit"};

  screen::Control LblKoptekst{*this, screen::Kind::PictureLabel, "LblKoptekst"};
  screen::Control LblRightTxt{*this, screen::Kind::PictureLabel, "LblRightTxt"};
  screen::Control LblYasTop{*this, screen::Kind::PictureLabel, "LblYasTop"};
  screen::Control LblXasEinde{*this, screen::Kind::PictureLabel, "LblXasEinde"};
  screen::Control LblC1{*this, screen::Kind::PictureLabel, "LblC1"};
  screen::Control LblMedian{*this, screen::Kind::PictureLabel, "LblMedian"};
  screen::Control LblCm{*this, screen::Kind::PictureLabel, "LblCm"};
  screen::Control LblR1{*this, screen::Kind::PictureLabel, "LblR1"};
  screen::Control LblRMedian{*this, screen::Kind::PictureLabel, "LblRMedian"};
  screen::Control LblRM_2{*this, screen::Kind::PictureLabel, "LblRM_2"};
  screen::Control LblCBegin{*this, screen::Kind::PictureLabel, "LblCBegin"};
  screen::Control LblCEinde{*this, screen::Kind::PictureLabel, "LblCEinde"};
  screen::Control LblLnLOQ{*this, screen::Kind::PictureLabel, "LblLnLOQ"};
  screen::Control LblLnURR{*this, screen::Kind::PictureLabel, "LblLnURR"};
  screen::Control LblRegres{*this, screen::Kind::PictureLabel, "LblRegres"};
  screen::Control LblDescrip{*this, screen::Kind::PictureLabel, "LblDescrip"};
  screen::Control LblShapiro{*this, screen::Kind::PictureLabel, "LblShapiro"};
  screen::Control LblOntwikkel{*this, screen::Kind::PictureLabel, "LblOntwikkel"};

  analysis::FitState state;  // Transformation, scores, weights
  bool LOQActive = false;    // which limit is being picked
  bool URRActive = false;
  double LimitValue = 0;  // the one last picked, in the unit of the outcomes
  double PlotSpan = 0;

  void Load() override;
  void Activate() override;
  void FollowSave(const LastAction* told) override;

  // Draws the picture afresh; the line gives its statistics to the record.
  void PlotStatus();
  // Closes the pickers of both limits; the limits stay.
  void ResetAll();

  void MenuLowLim_Click();
  void MenuUpLim_Click();
  void MenuRemDetec_Click();
  void PicPlot_MouseDown(double y);

 private:
  using Check = LimitComplaint (*)(Given&, double);

  void ConnectMenus();
  void ConnectLimits();
  void ClickLedNowhere() override { Activate(); }
  bool IsShown() const;
  // Lays the series out on the present scale, or on that of the logarithm.
  void RefillCTransf();

  void Transform(const std::string& scale);
  // Marks the present scale and kind in their menus.
  void TickChoices();
  void ShowKind(PlotStyle kind);
  void ToggleDeveloperMode();
  void ShowDevelopment();
  void SavePicture();

  bool Upright() const { return session.PlotKind != PlotStyle::Inverse && !AnnexE(); }
  bool AnnexE() const { return session.PlotKind == PlotStyle::AnnexE; }
  PlotWBas::PlotData Data() const;
  void DrawCumulative(PlotWBas::Labels& labels);
  void DrawAnnex(PlotWBas::Labels& labels);
  // The line, whose estimators go into the record.
  analysis::Regression Fit();
  void TellLine(const analysis::Regression& fit);
  void TakeEstimators(const analysis::Regression& fit);
  void CheckLimit(Check check, double value);
  // The inner values, on demand.
  void List(PlotWBas::Labels& labels, const PlotWBas::ListedPlaces& places,
            const analysis::Regression& fit);
  void ShowLabels(const PlotWBas::Labels& labels);

  void OpenPicker(screen::Control& upright, screen::Control& across);
  void HideBars();
  void PlaceBars();
  void FollowLimits(const PlotWBas::LimitMark& LOQ, const PlotWBas::LimitMark& URR);
  void BarMoved(const screen::Control& bar, double from, double sign, Check check);
  Check PickedLimit(double value) const;
  // What a step that sets the limit of `check` to `value` is called.
  std::string StepWords(Check check, double value) const;
  void TellComplaint();

  std::deque<screen::Control> annexLabels_;  // controls keep their place
  // In the order of analysis::kTransformations.
  const std::array<screen::Control*, 7> scaleMenus_{&MenuDubLog, &MenuLog, &MenuSqrt, &MenuUntransf,
                                                    &MenuSqrd,   &MenuExp, &MenuRecip};
};

}  // namespace plots
