// The results of a response run and the history block of the project file: per record step six
// values a node (the x, y pairs of displacement, velocity and acceleration), four an element
// (EsfuerzoX, EsfuerzoY, EsfuerzoXY, ProfundidadFreático) and three an element (EsfuerzoMayor,
// EsfuerzoMenor, MóduloCortanteActual). The run fills the block from its arrays; reading a project
// fills the arrays back from the block, so the result screens work on a reopened project.
#pragma once

namespace lomaterra {

struct Proyecto;

// The block from the result arrays, for every step of the record (steps beyond PasosCalculados are
// zero), with the flags and counts that make the writer put it out.
void HistoriaDesdeResultados(Proyecto& p);

// The result arrays from the block just read: PasosCalculados from PasosSísmicos, the maxima
// recomputed, ResultadosSísmicos when a step stands. Arrays the block does not carry stay zero.
void ResultadosDesdeHistoria(Proyecto& p);

// The largest displacement in magnitude over the steps computed and all node degrees, its node and
// step, and each step's largest.
void MáximosSísmicos(Proyecto& p);

}  // namespace lomaterra
