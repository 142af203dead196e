// Sizes the screens accept and every method holds.
#pragma once

namespace lomaterra {

// The largest number of slices a calculation accepts. Leshchinsky-Huang solves its system along
// the band, so time and memory grow with the count, not with its square or cube.
inline constexpr long kMáximoDovelas = 5000;

}  // namespace lomaterra
