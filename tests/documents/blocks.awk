# The code in documents of Markdown, into files of the folder `out`: NUMBER.LANGUAGE for a block between fences, NUMBER.indented for
# one that is indented; and what stands between backticks in a text, a line each, into the file `inline`.
function begin(language) {
    file = sprintf("%s/%03d.%s", out, ++number, language)
    printf "%s:%d\n", FILENAME, FNR >(out "/places")
}
FNR == 1 { fenced = indented = 0; blank = 1 }
/^ *```/ {
    fenced = !fenced
    if (fenced) { sub(/^ *```/, ""); begin($0) }
    next
}
fenced { print >file; next }
/^    / && (blank || indented) {
    if (!indented) begin("indented")
    indented = 1
    sub(/^    (    )?/, "")
    print >file
    next
}
{
    blank = /^ *$/
    if (!blank) indented = 0
    while (match($0, /`[^`]+`/)) {
        print substr($0, RSTART + 1, RLENGTH - 2) >(out "/inline")
        $0 = substr($0, RSTART + RLENGTH)
    }
}
