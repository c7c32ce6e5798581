# Says which promises of the contract a host's database keeps: hostcheck DATABASE.dll [--drawing FILE]. Builds it first. The
# exit code is hostcheck's.

usage() { echo "usage: ./run hostcheck DATABASE.dll [--drawing FILE]" >&2; exit 2; }

case $#:${2-} in 1:|3:--drawing) ;; *) usage ;; esac
words=()
for word_of_caller in "$@"; do
    case $word_of_caller in
        --drawing) words+=(--drawing) ;;
        -*) usage ;;
        *) words+=("Z:$(cd "$ORLO_CALLER_DIR" && realpath -m -- "$word_of_caller")") ;;
    esac
done
( set -- hostcheck; word=build; source run.d/build.sh ) >&2
wine_session own
status=0
wine build/bin/hostcheck.exe "${words[@]}" || status=$?
exit $status
