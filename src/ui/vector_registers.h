#pragma once

namespace ui {

// Clears the upper halves of the vector registers, where the processor has them and the system
// keeps them; nothing elsewhere.
//
// The toolkit paints with 256-bit instructions and leaves those halves in use. While they are, each
// 128-bit instruction of the calculations must keep them, and the mathematics library switches
// between both kinds in every call of exp and log: all calculations then take some ten times as
// long. So they are cleared wherever the toolkit hands over to the program: before a handler, and
// behind each repaint, box or dialog within one.
void ClearVectorRegisters();

}  // namespace ui
