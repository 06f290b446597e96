#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tries docs/json.schema.json with tools that users have. ajv, in its strict mode, compiles it and
# checks every document in the repository against it. json-schema-to-typescript makes types from it,
# and the TypeScript compiler uses these for a small program.
#
#   tests/docs/schema_tools.sh
#
# Needs Node.js 20 and npm, which installs the versions of package-lock.json in build/schema_tools.
# Without Node.js, says so and ends with the exit code 77.

set -euo pipefail

cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.."

for tool in node npm; do
  if ! command -v "$tool" >/dev/null; then
    echo "skipped: $tool is not installed, so nobody tried ajv and json-schema-to-typescript"
    exit 77
  fi
done

work=build/schema_tools
mkdir -p "$work"
cp tests/docs/package.json tests/docs/package-lock.json tests/docs/schema_tools.mjs \
  tests/docs/schema_types.ts "$work"
if ! cmp -s "$work/package-lock.json" "$work/node_modules/installed-lock.json"; then
  npm ci --prefix "$work" --ignore-scripts --no-audit --no-fund --loglevel=error
  cp "$work/package-lock.json" "$work/node_modules/installed-lock.json"
fi
node "$work/schema_tools.mjs" docs/json.schema.json "$work/document.d.ts" tests/cases examples
node "$work/node_modules/typescript/bin/tsc" --strict --noEmit --target es2022 \
  --module nodenext "$work/schema_types.ts"
echo "the types of the schema compile"
