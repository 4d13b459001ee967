# Hands CTest's output on, with the ten slowest tests before its closing lines.

/Test +#[0-9]+: .* sec$/ { seconds[$4] = $(NF - 1) }

/tests passed, .* failed out of/ {
    print "\nThe slowest tests, seconds:"
    for (rank = 0; rank < 10; ++rank) {
        slowest = ""
        for (name in seconds)
            if (slowest == "" || seconds[name] > seconds[slowest]) slowest = name
        if (slowest == "") break
        printf "%8.2f  %s\n", seconds[slowest], slowest
        delete seconds[slowest]
    }
}

{ print; fflush() }
