# Builds what measures, and prints one line "name value unit" each; names choose the benches of a program.

targets=(bench_sheet keeper)
source run.d/build.sh
wine_session own
wine build/bin/bench_sheet.exe "$@" | tr -d '\r'
