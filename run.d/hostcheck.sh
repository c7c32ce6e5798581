# ./run hostcheck DATABASE.dll [--drawing FILE] [--allow stubs]
# Checks a host's drawing database against the contract and returns hostcheck's exit code.

arguments=()
for argument in "$@"; do
    case $argument in
        -* | stubs) arguments+=("$argument") ;;
        *) arguments+=("Z:$(cd "$ORLO_CALLER_DIR" && realpath -m -- "$argument")") ;;
    esac
done
( set -- hostcheck; command=build; source run.d/build.sh ) >&2
wine_session own
status=0
wine build/bin/hostcheck.exe "${arguments[@]}" || status=$?
exit $status
