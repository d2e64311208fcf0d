#pragma once

#include <optional>

#include "compare/inference.h"
#include "compare/steps.h"
#include "navigation/session_form.h"

namespace compare {

// The comparison screen: the current GM and GSD against those of a reference sample, or of a
// population whose parameters are known.
struct TwoSampCompForm final : navigation::SessionForm {
  TwoSampCompForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control HuidigFrame{*this, screen::Kind::Frame, "HuidigFrame"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control NameTxB{*this, screen::Kind::TextBox, "NameTxB"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control SampSizTxB{*this, screen::Kind::TextBox, "SampSizTxB"};
  screen::Control RefDurLbl{*this, screen::Kind::Label, "RefDurLbl"};
  screen::Control GMLbl{*this, screen::Kind::Label, "GMLbl"};
  screen::Control GMTxB{*this, screen::Kind::TextBox, "GMTxB"};
  screen::Control DimLbl{*this, screen::Kind::Label, "DimLbl"};
  screen::Control GSDLbl{*this, screen::Kind::Label, "GSDLbl"};
  screen::Control GSDTxB{*this, screen::Kind::TextBox, "GSDTxB"};

  screen::Control IntroFrame{*this, screen::Kind::Frame, "IntroFrame"};
  screen::Control IntroLbl{*this, screen::Kind::Label, "IntroLbl"};

  screen::Control PopSampFrame{*this, screen::Kind::Frame, "PopSampFrame"};
  screen::Control SampOpt{*this, screen::Kind::OptionButton, "SampOpt"};
  screen::Control PopOpt{*this, screen::Kind::OptionButton, "PopOpt"};

  screen::Control DescrSecond{*this, screen::Kind::Frame, "DescrSecond"};
  screen::Control SampSizLbl2{*this, screen::Kind::Label, "SampSizLbl2"};
  screen::Control SampSizTxB2{*this, screen::Kind::TextBox, "SampSizTxB2"};
  screen::Control SampSiz2_UpD{*this, screen::Kind::UpDown, "SampSiz2_UpD"};
  screen::Control GMLbl2{*this, screen::Kind::Label, "GMLbl2"};
  screen::Control GMTxB2{*this, screen::Kind::TextBox, "GMTxB2"};
  screen::Control GM2_UpD{*this, screen::Kind::UpDown, "GM2_UpD"};
  screen::Control DimLbl2{*this, screen::Kind::Label, "DimLbl2"};
  screen::Control GSDLbl2{*this, screen::Kind::Label, "GSDLbl2"};
  screen::Control GSDTxB2{*this, screen::Kind::TextBox, "GSDTxB2"};
  screen::Control GSD2_UpD{*this, screen::Kind::UpDown, "GSD2_UpD"};

  screen::Control GSDEqualFrm{*this, screen::Kind::Frame, "GSDEqualFrm"};
  screen::Control EqualOpt{*this, screen::Kind::OptionButton, "EqualOpt"};
  screen::Control DifferOpt{*this, screen::Kind::OptionButton, "DifferOpt"};

  screen::Control CalcCmb{*this, screen::Kind::CommandButton, "CalcCmb"};

  screen::Control DescrInfFrm{*this, screen::Kind::Frame, "DescrInfFrm"};
  screen::Control GSDinferLbl{*this, screen::Kind::Label, "GSDinferLbl"};
  screen::Control GSDInfTxb{*this, screen::Kind::TextBox, "GSDInfTxb"};
  screen::Control GMinferLbl{*this, screen::Kind::Label, "GMinferLbl"};
  screen::Control GMInfTxb{*this, screen::Kind::TextBox, "GMInfTxb"};

  screen::Control PooledFrm{*this, screen::Kind::Frame, "PooledFrm"};
  screen::Control SampSizLbl3{*this, screen::Kind::Label, "SampSizLbl3"};
  screen::Control SampSizTxb3{*this, screen::Kind::TextBox, "SampSizTxb3"};
  screen::Control GMLbl3{*this, screen::Kind::Label, "GMLbl3"};
  screen::Control GMTxb3{*this, screen::Kind::TextBox, "GMTxb3"};
  screen::Control DimLbl3{*this, screen::Kind::Label, "DimLbl3"};
  screen::Control GSDLbl3{*this, screen::Kind::Label, "GSDLbl3"};
  screen::Control GSDTxb3{*this, screen::Kind::TextBox, "GSDTxb3"};

  screen::Control BoodschFrame{*this, screen::Kind::Frame, "BoodschFrame"};
  screen::Control BoodschLbl{*this, screen::Kind::Label, "BoodschLbl"};

  bool loaded = false;

  void Load() override;
  void Activate() override;
  void BeforeTabClick() override;

  // Strip, menus and the current data.
  void TabTwoSamp();
  // The start of the dialogue: asks for reference data while no kind of them is chosen.
  void StartCompare();
  // Compares, and shows the results.
  void Inference();

  void CalcCmb_Click();

 private:
  // A box for a reference value, with its field of the record.
  struct Reference {
    screen::Control& box;
    double Given::*field;
    void (*check)(Workflow&, const GlobalBAS::Entry&, double&, const GlobalBAS::Notify&);
    bool (*inRange)(double);
    ReferenceStep (*step)(double, int);
    std::optional<double> told = std::nullopt;  // the value that was last refused
  };

  void WireReference(Reference& reference, screen::Control& pair);
  void WireVariances();

  void ShowCurrent();
  bool AskForReference();
  void ShowReference();
  void FillReference();
  void ChooseKind(ReferenceKind kind, const char* window);
  double ValueOf(const Reference& reference) const { return session.*reference.field; }
  // The controls and captions of the kind that is chosen.
  void ShowKind();
  void ShowSampleWords();
  void ShowPopulationWords();
  void ShowVariances();

  // Takes over what the box holds. False when the validator refused it, and for an empty box.
  bool Accept(Reference& reference);
  void AcceptAndInfer(Reference& reference, bool always);
  // The box was told of this value and is untouched since.
  bool ToldBefore(const Reference& reference) const;
  void Leave(Reference& reference);
  void Step(Reference& reference, int direction);
  // The reference value that lies out of its range; null when none of those in use does.
  Reference* FirstOutOfRange();
  // The button is there only for values that can be compared.
  void OfferCalculation() { CalcCmb.visible = !FirstOutOfRange(); }

  // No result stands beside an input that has changed since.
  void DropResults();
  void ClearResults();
  // The results that the record holds for the present state; empty boxes without.
  void ShowResults();
  bool ShowsResults() const;
  Answer AskOnVariances(double A);

  Reference sampleSize_{SampSizTxB2, &Given::M2, GlobalBAS::CheckMRef, GlobalBAS::InRangeMRef,
                        StepM2};
  Reference location_{GMTxB2, &Given::GM2, GlobalBAS::CheckGM, GlobalBAS::InRangeGM, StepGM2};
  Reference dispersion_{GSDTxB2, &Given::GSD2, GlobalBAS::CheckGSD, GlobalBAS::InRangeGSD,
                        StepGSD2};
  bool refused_ = false;  // the last box that was left had its text refused
};

}  // namespace compare
