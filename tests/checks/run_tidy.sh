#!/usr/bin/env bash
# clang-tidy over the sources, two at a time. The precompiled headers are the compiler's, not clang's, so the commands
# are stripped of them first.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
mkdir -p build/tidy
python3 - <<'PY'
import json, os, re
commands = json.load(open("build/compile_commands.json"))
kept = []
for c in commands:
    if not c["file"].startswith(os.getcwd() + "/src/") or not c["file"].endswith(".cpp"):
        continue
    c["command"] = re.sub(r"-Winvalid-pch|-include \S*cmake_pch\.hxx|-Wshadow=local|^\S*ccache ", "", c["command"])
    kept.append(c)
json.dump(kept, open("build/tidy/compile_commands.json", "w"))
PY
python3 -c 'import json; [print(c["file"]) for c in json.load(open("build/tidy/compile_commands.json"))]' |
  xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/tidy
