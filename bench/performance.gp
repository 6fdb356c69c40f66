# Draws docs/performance.svg from the rows that `tintvert_bench --docs` leaves: a routine, its scalar version and its
# highest level beside memcpy of the same bytes.
rows = system("wc -l < docs/performance.dat")
set terminal svg noenhanced size 900, 120 + rows * 14 dynamic font "sans-serif,10" background "white"
set output "docs/performance.svg"
set title "1920x1080 frame: time divided by memcpy of the same bytes (1 is memory speed)"
set logscale x 2
set xrange [0.25:512]
set yrange [-1:rows]
set ytics scale 0
set grid x
set key top right
set lmargin 34
plot "docs/performance.dat" using 2:(rows - 1 - $0):ytic(1) with points pt 6 ps 0.6 lc rgb "#999999" title "scalar version", \
     "" using 3:(rows - 1 - $0) with points pt 7 ps 0.6 lc rgb "#1f6fb4" title "highest level"
