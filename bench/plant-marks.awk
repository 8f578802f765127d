# Puts marker words into the names of an index.txt so that each marker matches an exact count:
# "zq1x" 1 record, "zq100x" 100, "zq10000x" 10,000, "zq100000x" 100,000 (when there are enough).
# Usage: awk -v records=N -v stamp="YYYY-MM-DD HH:MM:SS" -f plant-marks.awk index.txt; the stamp
# replaces the build date, so that the program does not find its index a day old and rebuild it.
BEGIN { RS = "\r\n"; ORS = "\r\n" }
NR == 1 { print stamp; next }
NR == 2 { folders = $1 + 0 }
NR <= 2 + folders { print; next }
(NR - folders) % 2 == 1 { print; next }   # a folder slot line
{
    r = (NR - folders - 4) / 2   # 0-based record
    mark = ""
    if (r == int(records / 2)) mark = mark "zq1x "
    n = split("100 10000 100000", counts, " ")
    for (i = 1; i <= n; i++) if (counts[i] <= records && r % (records / counts[i]) == 0) mark = mark "zq" counts[i] "x "
    print mark $0
}
