#!/bin/sh
# Looks at the packed tests as someone who was sent them: check.sh ZIP_FILE. Wants Wine and a display; prints what is wrong.
set -eu
here=$(cd "$(dirname "$0")/.." && pwd)
. "$here/archive_checks.sh"

TZ=UTC unzip -q "$1" -d "$scratch/My Downloads"
folder="$scratch/My Downloads/$(basename "$1" .zip)"
programs=$folder/programs
report=$folder/report/report.txt

expect_files "$folder" README.txt run-tests.cmd LICENSE.txt licences/README.txt licences/GoogleTest.txt programs/build.txt
for exe in "$programs"/*.exe; do
    expect_runs_anywhere "$exe"
done

run_tests() {
    code=0
    (cd / && "$here/wine.sh" cmd /c "$folder/run-tests.cmd" /quiet "$@") >"$scratch/said" 2>&1 || code=$?
    ls "$folder" >"$scratch/left"
    ! grep -qx scratch "$scratch/left" || complain 'What the tests wrote is left behind.'
}
expect_line() { grep -qE "$2" "$1" || complain "$(basename "$1") does not say \"$2\" but: $(cat "$1")"; }

# The other programs run from the build, and take their time there.
run_tests test_ui tarnwell-tour
[ "$code" = 0 ] || complain "Tests that pass end with $code."
expect_line "$scratch/said" 'All tests have passed'
expect_line "$scratch/said" 'The report lies in ".*\\report'
expect_line "$report" "^$(cat "$programs/build.txt")"
expect_line "$report" '^Qt [0-9.]+'
expect_line "$report" '^Microsoft Windows '
expect_line "$report" '^passed .* test_ui .* [0-9]+ passed'
expect_line "$report" '^2 of 2 programs passed'
[ "$(find "$folder/report/pictures" -name '*.png' | wc -l)" -gt 20 ] || complain 'The pictures of the tour are missing.'

# Whether all programs find what they start; and what does not pass, in all its ways.
mv "$programs/tarnwell-samples.exe" "$scratch"
cat >"$programs/tests.txt" <<'TEXT'
60 test_platform --gtest_filter=ProcessLauncher.*
60 test_end_to_end --gtest_filter=Install.AnImageGoesToTheDisk*
60 MARK=1 test_simulator --gtest_filter=Copying.TheSamples*:GameTable.OnlyAConsole*
60 child_helper exit 3
2 child_helper hang
60 missing
TEXT
run_tests
[ "$code" = 1 ] || complain "Tests that fail end with $code."
expect_line "$scratch/said" 'Not all tests have passed'
expect_line "$report" '^passed .* test_platform .* [0-9]+ passed'
expect_line "$report" '^passed .* test_end_to_end .* 1 passed'
expect_line "$report" '^FAILED .* test_simulator .* 1 passed, 1 failed, ended with 1'
expect_line "$report" '^FAILED .* child_helper .*ended with 3'
expect_line "$report" '^FAILED .* child_helper .*ended by force after 2 s'
expect_line "$report" '^FAILED .* missing .*could not be started'
expect_line "$report" '^== test_simulator'
expect_line "$report" '^.  FAILED  . Copying.TheSamples'

exit "$wrong"
