#!/usr/bin/env bash
# Installs a build into a temporary prefix and checks what a user gets there:
# every file in its place, the installed converter on the installed samples,
# the launcher, the manual pages, and the desktop program's command line.
# Usage: install_test.sh BUILD_DIR SOURCE_DIR "Ostraline VERSION"
set -uo pipefail
build=$1
source=$2
version=$3
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
export QT_QPA_PLATFORM=offscreen
failures=0
fail() {
  echo "FAIL: $*" >&2
  failures=$((failures + 1))
}

if ! cmake --install "$build" --prefix "$prefix" >/dev/null; then
  echo "FAIL: cmake --install $build" >&2
  exit 1
fi

samples=share/ostraline/samples
for file in bin/ostraline bin/ostraline-convert share/applications/ostraline.desktop \
            share/icons/hicolor/scalable/apps/ostraline.svg share/man/man1/ostraline.1 \
            share/man/man1/ostraline-convert.1 $samples/EXPECTED.md $samples/README.md \
            $samples/make_samples.py share/doc/ostraline/README.md share/doc/ostraline/LICENSE \
            share/doc/ostraline/docs/main_window.png; do
  [ -f "$prefix/$file" ] || fail "not installed: $file"
done
for program in bin/ostraline bin/ostraline-convert; do
  [ -x "$prefix/$program" ] || fail "not executable: $program"
done
for sample in "$source"/samples/*.csv "$source"/samples/*.jpg; do
  cmp -s "$sample" "$prefix/$samples/${sample##*/}" || fail "sample not installed as it is: ${sample##*/}"
done

# The sample positions converted by the installed program; LC20-001 as
# EXPECTED.md works it out: composite depth 638.27, EFD 621.3, and with the
# varve counts the age 6088 (+158, -76 varve yr BP).
work=$prefix/work
mkdir -p "$work"
(cd "$prefix/$samples" && "$prefix/bin/ostraline-convert" \
   --model correlation_model_20250314.csv --events event_layers_20250320.csv \
   --ages age_depth_model_20250402.csv --varves varve_counts_20250325.csv \
   positions.csv "$work/converted.csv") || fail "ostraline-convert on the installed samples"
grep -qF '"LC20-001","A","5","76.1",638.27,621.3,6088,158,76,"varve yr BP"' "$work/converted.csv" ||
  fail "LC20-001 converted: $(grep LC20-001 "$work/converted.csv")"

# The launcher: valid, and naming the installed program and icon.
launcher=$prefix/share/applications/ostraline.desktop
validation=$(desktop-file-validate "$launcher" 2>&1) || fail "desktop-file-validate: $validation"
[ -z "$validation" ] || fail "desktop-file-validate: $validation"
exec_name=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$launcher")
icon_name=$(sed -n 's/^Icon=//p' "$launcher")
[ -x "$prefix/bin/$exec_name" ] || fail "the launcher runs '$exec_name', which is not installed"
[ -f "$prefix/share/icons/hicolor/scalable/apps/$icon_name.svg" ] ||
  fail "the launcher's icon '$icon_name' is not installed"
grep -q '<svg' "$prefix/share/icons/hicolor/scalable/apps/ostraline.svg" || fail "the icon is no SVG"

# The manual pages: rendered without a warning, with their sections, and
# naming every option that the program's --help names.
for program in ostraline ostraline-convert; do
  page=$prefix/share/man/man1/$program.1
  warnings=$(MANWIDTH=80 man -l --warnings "$page" 2>&1 >/dev/null)
  [ -z "$warnings" ] || fail "man -l $program.1: $warnings"
  text=$(MANWIDTH=80 man -l "$page" 2>/dev/null)
  for section in NAME SYNOPSIS DESCRIPTION OPTIONS FILES "EXIT STATUS" EXAMPLES; do
    grep -q "^$section\$" <<<"$text" || fail "$program.1 has no section $section"
  done
  for option in $("$prefix/bin/$program" --help | grep -o -- '--[a-z][a-z-]*' | sort -u); do
    grep -q -- "$option" <<<"$text" || fail "$program.1 does not name $option"
  done
done

# The desktop program's command line, before any window opens.
"$prefix/bin/ostraline" --version >"$work/version" 2>&1 || fail "ostraline --version: exit $?"
[ "$(cat "$work/version")" = "$version" ] || fail "ostraline --version: $(cat "$work/version")"
[ "$("$prefix/bin/ostraline-convert" --version)" = "$version" ] ||
  fail "ostraline-convert --version: $("$prefix/bin/ostraline-convert" --version)"
"$prefix/bin/ostraline" --help >"$work/help" 2>&1 || fail "ostraline --help: exit $?"
grep -q '^Usage: ostraline ' "$work/help" || fail "ostraline --help: $(head -n 1 "$work/help")"
"$prefix/bin/ostraline" --no-such-option >"$work/out" 2>"$work/err"
status=$?
[ $status -eq 2 ] || fail "ostraline --no-such-option: exit $status, not 2"
[ ! -s "$work/out" ] || fail "ostraline --no-such-option wrote to standard output"
grep -q 'unknown option --no-such-option' "$work/err" && grep -q '^Usage: ostraline ' "$work/err" ||
  fail "ostraline --no-such-option: $(cat "$work/err")"
"$prefix/bin/ostraline" --ages age.csv >/dev/null 2>&1
status=$?
[ $status -eq 2 ] || fail "ostraline --ages without --events: exit $status, not 2"

# The installed program on the installed samples, named on its command line
# and by --demo. A failed import would wait for its message box to be
# answered: the time limit catches it.
(cd "$prefix/$samples" && timeout 300 "$prefix/bin/ostraline" \
   --model correlation_model_20250314.csv --events event_layers_20250320.csv \
   --ages age_depth_model_20250402.csv --varves varve_counts_20250325.csv \
   --screenshot "$work/model.png" >"$work/out" 2>"$work/err") ||
  fail "ostraline --model ... --screenshot: $(cat "$work/err")"
[ -s "$work/model.png" ] || fail "ostraline --model ... --screenshot wrote no picture"
! grep -q 'not imported' "$work/err" || fail "ostraline --model: $(cat "$work/err")"
timeout 300 "$prefix/bin/ostraline" --demo --screenshot "$work/demo.png" >"$work/out" 2>"$work/err" ||
  fail "ostraline --demo --screenshot: $(cat "$work/err")"
[ -s "$work/demo.png" ] || fail "ostraline --demo --screenshot wrote no picture"
! grep -q 'not found' "$work/err" || fail "ostraline --demo: $(cat "$work/err")"

if [ $failures -ne 0 ]; then
  echo "$failures check(s) failed" >&2
  exit 1
fi
echo "The installation in a temporary prefix holds every file and runs."
