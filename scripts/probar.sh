#!/usr/bin/env bash
# Sets up what is missing, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
cmake --preset normal >/dev/null
cmake --build --preset normal -j 2
QT_QPA_PLATFORM=offscreen ctest --preset normal
