# CHANGELOG.md in the forms in which packages tell what has changed. Its newest section, "## 1.2.11 (unreleased)"
# or "## 1.2.11 (2026-11-22)", names the version that is built.
#
#   awk -f changelog.awk -v form=FORM [-v today=YYYY-MM-DD] [-v who="NAME <ADDRESS>"] CHANGELOG.md
#
#   version    the newest version
#   epoch      the day of the newest version in seconds since 1970; nothing while it is unreleased
#   day        the same as YYYY-MM-DD; today's while it is unreleased
#   debian     a changelog as Debian has it; rpm: as a spec has it
#   appstream  the releases of the metainfo

function days_since_1970(day,    part, y, m) { # the year begins in March, so that its last day may be a 29th
    split(day, part, "-")
    y = part[1]
    m = part[2] + 0
    if (m <= 2) { y--; m += 12 }
    return 365 * y + int(y / 4) - int(y / 100) + int(y / 400) + int((153 * (m - 3) + 2) / 5) + part[3] - 719469
}

function word(list, number,    words) {
    split(list, words, " ")
    return words[number]
}

function weekday(day) { return word("Thu Fri Sat Sun Mon Tue Wed", days_since_1970(day) % 7 + 1) }

function month(day) { return word("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec", substr(day, 6, 2) + 0) }

function plain(text,    link, label) {
    while (match(text, /\[[^]]*\]\([^)]*\)/)) {
        link = substr(text, RSTART, RLENGTH)
        label = substr(link, 2, index(link, "](") - 2)
        text = substr(text, 1, RSTART - 1) label substr(text, RSTART + RLENGTH)
    }
    gsub(/`|\*\*/, "", text)
    return text
}

function escaped(text) {
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    gsub(/>/, "\\&gt;", text)
    return text
}

# Lines of at most 78 bytes, the first one behind `first`, the others behind as many blanks.
function wrapped(first, text,    count, words, i, line, lines, blanks) {
    count = split(text, words, " ")
    line = first
    blanks = sprintf("%" length(first) "s", "")
    for (i = 1; i <= count; i++) {
        if (length(line) + length(words[i]) >= 78 && line != blanks) {
            lines = lines line "\n"
            line = blanks
        }
        line = line (line == first || line == blanks ? "" : " ") words[i]
    }
    return lines line "\n"
}

function told(release,    i, item, list, open) {
    for (i = 1; i <= items[release]; i++) {
        item = plain(texts[release, i])
        if (form == "appstream") {
            if (isHeading[release, i]) {
                list = list (open ? "        </ul>\n" : "") "        <p>" escaped(item) "</p>\n"
                open = 0
            } else {
                list = list (open ? "" : "        <ul>\n") "          <li>" escaped(item) "</li>\n"
                open = 1
            }
        } else if (isHeading[release, i]) {
            list = list (form == "debian" ? "  [ " item " ]\n" : "")
        } else {
            list = list wrapped(form == "debian" ? "  * " : "- ", item)
        }
    }
    return list (open ? "        </ul>\n" : "")
}

function printed(release,    day, head) {
    day = days[release]
    if (form == "debian") {
        printf "tal-vero-connect (%s-1) unstable; urgency=medium\n\n%s\n", versions[release], told(release)
        printf " -- %s  %s, %s %s %s 00:00:00 +0000\n", who, weekday(day), substr(day, 9), month(day), substr(day, 1, 4)
    } else if (form == "rpm") {
        printf "* %s %s %s %s %s %s-1\n", weekday(day), month(day), substr(day, 9), substr(day, 1, 4), who, versions[release]
        printf "%s", told(release)
    } else {
        head = "    <release version=\"%s\" date=\"%s\" type=\"%s\">\n      <description>\n"
        printf head, versions[release], day, isOut[release] ? "stable" : "development"
        printf "%s      </description>\n    </release>\n", told(release)
    }
}

function add(text, heading) {
    texts[count, ++items[count]] = text
    isHeading[count, items[count]] = heading
}

/^## / {
    count++
    versions[count] = $2
    days[count] = substr($3, 2, length($3) - 2)
    isOut[count] = days[count] != "unreleased"
    if (!isOut[count]) days[count] = today
    inItem = 0
    next
}
/^### / && count { add(substr($0, 5), 1); inItem = 0; next }
/^- / && count { add(substr($0, 3), 0); inItem = 1; next }
/^ +[^ ]/ && inItem { sub(/^ +/, " "); texts[count, items[count]] = texts[count, items[count]] $0; next }
{ inItem = 0 }

END {
    if (form == "version") print versions[1]
    else if (form == "day") print days[1]
    else if (form == "epoch") { if (isOut[1]) printf "%.0f\n", days_since_1970(days[1]) * 86400 }
    else for (release = 1; release <= count; release++) {
        if (release > 1 && form != "appstream") print ""
        printed(release)
    }
}
