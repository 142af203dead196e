#!/usr/bin/env bash
# Builds the screenshot gallery and renders, without a screen, the main window with a sample
# project, its menus, the boxes, the help viewer and every screen the menu commands open, to PNG
# files in galeria/ (not kept in git). A project file may be given to show instead of the sample.
#   scripts/galeria.sh [PROYECTO.cod]
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset normal >/dev/null
cmake --build --preset normal -j 2 --target lomaterra-galeria
rm -rf galeria
QT_QPA_PLATFORM=offscreen ./build/normal/ventanas/lomaterra-galeria galeria "$@"
echo "Vea las imágenes en $(pwd)/galeria (y galeria/transcripcion.txt: lo que dijo cada orden)."
