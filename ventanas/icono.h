// The program's icon, drawn in code: a slope cut by a circular failure surface.
#pragma once

#include <QIcon>

namespace lomaterra {

QIcon IconoLomaterra();

}  // namespace lomaterra
