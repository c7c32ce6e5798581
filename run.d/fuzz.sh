# ./run fuzz [SECONDS] [NAME...]
# Fuzzes the readers of untrusted files, or those named, one after the other for SECONDS (60) each.

seconds=${1:-60}
wanted=" ${*:2} "
source run.d/setup.sh
say "building the fuzzers"
configure sanitize
cmake --build build/sanitize --target fuzzers

failed=0
while read -r name seeds; do
    if [ "$wanted" != "  " ] && [[ $wanted != *" $name "* ]]; then continue; fi
    found=build/fuzz/$name   # the corpus that the fuzzer has built, kept between runs
    mkdir -p "$found"
    say "fuzzing $name for $seconds s"
    # shellcheck disable=SC2086 # the seeds are words
    if build/sanitize/fuzz/fuzz_"$name" -max_total_time="$seconds" -rss_limit_mb=1024 -timeout=10 -print_final_stats=1 \
        -artifact_prefix="$found-" "$found" $seeds >"$found.log" 2>&1; then
        grep -E '^stat::(number_of_executed_units|peak_rss_mb)' "$found.log" | sed "s/^stat::/$name /"
    else
        tail -n 40 "$found.log"
        say "$name found a fault: keep the input in fuzz/regressions/$name"
        failed=1
    fi
done <build/sanitize/fuzz/fuzzers.txt
exit $failed
