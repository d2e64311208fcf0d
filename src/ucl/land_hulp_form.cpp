#include "ucl/land_hulp_form.h"

#include "catalog/own_texts.h"
#include "session/global_bas.h"

namespace ucl {

using UCLBAS::LandSign;
using UCLBAS::LandWatch;

LandHulpForm::LandHulpForm(const ExposureSession& record, screen::Ports& formPorts)
    : SideWindow("LandHulpForm", formPorts), session(record) {
  for (screen::Control* box : {&InitTxb0, &InitTxb1, &SecantTxb0, &SecantTxb1, &ConFactTxb})
    box->locked = true;
}

void LandHulpForm::Load() {
  caption = OwnText(Own::LandCaption);
  InitLbl.text = OwnText(Own::LandInterval);
  StreepjeLbl0.text = OwnText(Own::LandTo);
  StreepjeLbl1.text = OwnText(Own::LandTo);
  ConFactLbl.text = OwnText(Own::LandFactor);
}

void LandHulpForm::Begin() {
  for (screen::Control* control :
       {&InitTxb0, &InitTxb1, &SecantTxb0, &SecantTxb1, &ConFactTxb, &Secant})
    control->text.clear();
  shown = true;
  Refresh();
}

void LandHulpForm::Follow(const LandWatch& watch, LandSign sign) {
  auto text = [this](const std::optional<double>& value) {
    return GlobalBAS::Shown(session, value);
  };
  InitTxb0.text = text(watch.InitTxb[0]);
  InitTxb1.text = text(watch.InitTxb[1]);
  SecantTxb0.text = text(watch.SecantTxb[0]);
  SecantTxb1.text = text(watch.SecantTxb[1]);
  ConFactTxb.text = text(watch.ConFactTxb);
  Secant.text = watch.Secant;
  if (sign == LandSign::SecantLabel) {
    Secant.Refresh();
  } else if (sign == LandSign::ConFactTxb) {
    ConFactTxb.Refresh();
  } else {
    shown = true;
    Refresh();
  }
}

}  // namespace ucl
