#!/usr/bin/env bash
# Checks the format of all sources, and has clang-tidy look at those of the plug-in and of the simulator with their
# headers, the host interfaces' among them. Installs nothing and builds nothing.
#   scripts/check-style.sh [PATTERN...]    clang-tidy looks at the files whose paths match
set -euo pipefail
cd "$(dirname "$0")/.."

missing=()
for tool in clang-format clang-tidy run-clang-tidy python3; do
    command -v "$tool" >/dev/null || missing+=("$tool")
done
if ((${#missing[@]} > 0)); then
    echo "check-style.sh: not installed: ${missing[*]}" >&2
    exit 1
fi

git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run -Werror

# Some sources are compiled into tests once more, with a precompiled header that clang cannot read.
[[ -f build/dev/compile_commands.json ]] || cmake --preset dev >/dev/null
mkdir -p build/dev/style
python3 - build/dev/compile_commands.json >build/dev/style/compile_commands.json <<'PYTHON'
import json, os, sys

with open(sys.argv[1]) as database:
    entries = json.load(database)
folders = tuple(os.path.join(os.getcwd(), folder, "") for folder in ("Plugins", "Simulator"))
json.dump([entry for entry in entries
           if entry["file"].startswith(folders) and " -o Tests/" not in entry["command"]
           and " -o Benchmarks/" not in entry["command"]], sys.stdout)
PYTHON
run-clang-tidy -quiet -p build/dev/style -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option "$@"
