#pragma once

#include <string>

#include "tests/support/program_session.h"

// The table of the data screen, as the tests of its rules find it.
namespace support {

inline screen::Grid& GridOf(ProgramSession& user) {
  return static_cast<screen::Grid&>(user.At("DataCtrlForm.DBGridVkr"));
}

// The table of a new series, with that many rows to fill.
inline void OpenTable(ProgramSession& user, const std::string& rows) {
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  user.Type("SampSizTxB", rows);
  user.Click("CmdContinu");
}

}  // namespace support
