# Makes one table of the aims (first file) and the benchmarks' CSV results (all others).
#
# A benchmark is called NAME or NAME/arguments, its yardstick NAME_base with the same arguments.

BEGIN {
    nanoseconds["ns"] = 1; nanoseconds["us"] = 1e3; nanoseconds["ms"] = 1e6; nanoseconds["s"] = 1e9
}

FNR == 1 { files++ }

files == 1 {
    if ($0 !~ /^[ \t]*(#|$)/) {
        aims++
        aim_name[aims] = "^(" $1 ")$"
        aim_ratio[aims] = $2
        aim_time[aims] = $3
    }
    next
}

# "name_median",iterations,real_time,cpu_time,unit,...  A name has no comma of its own.
/^"[^"]*_median",/ {
    split($0, field, ",")
    name = substr(field[1], 2, length(field[1]) - 2)
    sub(/_median$/, "", name)
    sub(/\/repeats:[0-9]+/, "", name)
    time = field[3] * nanoseconds[field[5]]
    slash = index(name, "/")
    head = slash ? substr(name, 1, slash - 1) : name
    tail = slash ? substr(name, slash) : ""
    if (sub(/_base$/, "", head)) {
        base[head tail] = time
    } else {
        names[++count] = name
        ours[name] = time
        if (length(name) > width) {
            width = length(name)
        }
    }
}

function shown(time) {
    if (time >= 1e6) {
        return sprintf("%.2f ms", time / 1e6)
    }
    return time >= 1e3 ? sprintf("%.2f us", time / 1e3) : sprintf("%.1f ns", time)
}

# "2ms" in nanoseconds
function limit(text, unit) {
    unit = text
    sub(/^[0-9.]+/, "", unit)
    return text * nanoseconds[unit]
}

function verdict(name, ratio, i, text, missed) {
    for (i = 1; i <= aims; i++) {
        if (name ~ aim_name[i]) {
            text = aim_ratio[i]
            missed = text != "-" && ratio > text
            if (aim_time[i] != "") {
                text = text == "-" ? aim_time[i] : text ", " aim_time[i]
                missed = missed || ours[name] > limit(aim_time[i])
            }
            return "<= " text (missed ? "  MISSED" : "")
        }
    }
    return ""
}

# The runs were mixed; by name, and numbers by their value, they are easier to read.
function key(name, text, digits) {
    text = ""
    while (match(name, /[0-9]+/)) {
        digits = substr(name, RSTART, RLENGTH)
        text = text substr(name, 1, RSTART - 1) sprintf("%012d", digits)
        name = substr(name, RSTART + RLENGTH)
    }
    return text name
}

function sort_names(i, j, name) {
    for (i = 2; i <= count; i++) {
        name = names[i]
        for (j = i - 1; j >= 1 && key(names[j]) > key(name); j--) {
            names[j + 1] = names[j]
        }
        names[j + 1] = name
    }
}

END {
    sort_names()
    if (width < 4) {
        width = 4
    }
    row = "%-" width "s  %12s  %12s  %7s  %s\n"
    printf row, "what", "baseline", "ours", "ratio", "aim"
    for (i = 1; i <= count; i++) {
        name = names[i]
        if (name in base) {
            ratio = ours[name] / base[name]
            printf row, name, shown(base[name]), shown(ours[name]), sprintf("%.2f", ratio),
                   verdict(name, ratio)
        } else {
            printf row, name, "-", shown(ours[name]), "-", verdict(name)
        }
    }
}
