#!/usr/bin/env bash
# Sets up what is missing, builds the desktop program and opens it with a sample project.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
cmake --preset normal >/dev/null
cmake --build --preset normal -j 2 --target lomaterra lomaterra-lote
exec ./build/normal/app/lomaterra "${1:-ejemplos/talud_homogeneo.cod}"
