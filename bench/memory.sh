#!/usr/bin/env bash
# Compares the memory of the game after an hour of play with that after a minute. The hour is the
# game's own: it takes some seconds.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

QT_QPA_PLATFORM=offscreen build/bench/probes/memory_probe 2>/dev/null | awk '{
    ratio = $2 / $1
    printf "%-28s %10.0f kB %10.0f kB %8.2f  <= 1.1 %s, %d mazes\n", "memory after an hour", $1, $2,
        ratio, ratio <= 1.1 ? "ok" : "MISSED", $3 }'
