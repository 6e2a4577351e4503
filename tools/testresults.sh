# shellcheck shell=bash
#
# Sourced by try-debian and packaging/windows/test-under-wine: what a run of ctest has told, in a few lines.

# tell_results <LastTest.log of ctest>: how many functions of the test programs in C++, and how many programs, passed,
# failed and were skipped; which failed; and why what was skipped was.
tell_results()
{
    [[ -f "$1" ]] || return 0
    awk '
        { sub(/\r$/, "") }
        /^Test (Passed|Failed|Skipped)\.$/ { ++programs[$2] }
        /^[0-9]+\/[0-9]+ Test: / { program = $3 }
        /^Totals: / { passed += $2; failed += $4; skipped += $6 }
        /^Test (Failed|Skipped)\.$/ { told[++count] = tolower($2) " " program }
        /^(SKIP   |FAIL!  |XPASS  |QFATAL ): / { told[++count] = $0 }
        END {
            printf "        functions: %d passed, %d failed, %d skipped\n", passed, failed, skipped
            printf "        programs:  %d passed, %d failed, %d skipped\n", programs["Passed."], programs["Failed."],
                programs["Skipped."]
            for (i = 1; i <= count; ++i)
                printf "        %s\n", told[i]
        }' "$1"
}
