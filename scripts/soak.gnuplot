# Draws the figures of a soak: gnuplot -e "figures='FILE.csv'; picture='FILE.png'" scripts/soak.gnuplot
set datafile separator ','
set terminal png size 1000,1000 font 'DejaVu Sans,10'
set output picture
set multiplot layout 4,1
set key left top
set grid
set lmargin 12
set rmargin 3
set xlabel ''
set yrange [0:]
set ylabel 'MiB'
plot figures skip 1 using ($1/60):($2/1024) with lines lw 2 title 'resident memory', \
     ''      skip 1 using ($1/60):($3/1024) with lines lw 2 title 'allocated of it'
set ylabel '% of one core'
plot figures skip 1 using ($1/60):4 with lines title 'processor time'
set ylabel 'ms'
set logscale y
set yrange [0.1:]
plot figures skip 1 using ($1/60):6 with lines lc rgb 'gray' title 'longest absence in each second, by the clock', \
     ''      skip 1 using ($1/60):7 with lines lc rgb 'red' title 'the same, processor time of its thread', \
     100 with lines dashtype 2 lc rgb 'black' title 'limit of the processor time'
unset logscale y
set yrange [0:]
set ylabel ''
set xlabel 'minutes'
plot figures skip 1 using ($1/60):9 with lines lw 2 title 'changes made', \
     ''      skip 1 using ($1/60):10 with lines title 'confirmed', \
     ''      skip 1 using ($1/60):11 with lines title 'refused', \
     ''      skip 1 using ($1/60):12 with lines title 'timed out', \
     ''      skip 1 using ($1/60):13 with lines title 'ended with the link', \
     ''      skip 1 using ($1/60):5 with lines title 'open files'
