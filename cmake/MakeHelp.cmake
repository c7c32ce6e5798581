# Creates a help page, with an anchor at each heading, from a guide:
#   cmake -Dmarkdown=PROGRAM -Dguide=FILE.md -Dpage=FILE.html -P MakeHelp.cmake

execute_process(COMMAND ${markdown} -o html -x tables -x toc -x sane_lists ${guide}
                OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY ENCODING UTF-8)
string(REGEX MATCH "<h1[^>]*>([^<]*)" heading "${body}")
file(WRITE ${page} "<!DOCTYPE html>
<html lang=\"en\">
<head>
<meta charset=\"utf-8\">
<title>${CMAKE_MATCH_1}</title>
<style>
body { max-width: 46em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; color: #222 }
h2 { border-top: 1px solid #ccc; padding-top: 1em }
img { max-width: 100% }
table { border-collapse: collapse }
td, th { border: 1px solid #ccc; padding: .2em .6em; text-align: left; vertical-align: top }
code { background: #f2f2f2; padding: 0 .2em }
</style>
</head>
<body>
${body}
</body>
</html>
")
