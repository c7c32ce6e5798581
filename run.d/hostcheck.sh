# ./run hostcheck DATABASE.dll [--drawing FILE]
# Checks a host's drawing database against the contract and returns hostcheck's exit code.

usage() { echo "usage: ./run hostcheck DATABASE.dll [--drawing FILE]" >&2; exit 2; }

case $#:${2-} in 1:|3:--drawing) ;; *) usage ;; esac
arguments=()
for argument in "$@"; do
    case $argument in
        --drawing) arguments+=(--drawing) ;;
        -*) usage ;;
        *) arguments+=("Z:$(cd "$ORLO_CALLER_DIR" && realpath -m -- "$argument")") ;;
    esac
done
( set -- hostcheck; command=build; source run.d/build.sh ) >&2
wine_session own
status=0
wine build/bin/hostcheck.exe "${arguments[@]}" || status=$?
exit $status
