// The views of the seismic result screens: the generic screen view with the headings of the result
// screen's two lists ("DESPLAZAMIENTOS (cm) - ..." and "ESFUERZOS (ton/m2)") above the tables, and
// the chart screen's buttons in three rows (the node, the element, the step) instead of one.
#pragma once

namespace lomaterra {

class VistaPantalla;

// Adjusts the view when it shows one of the two seismic screens; nothing otherwise.
void AjustarVistaSísmica(VistaPantalla& vista);

}  // namespace lomaterra
