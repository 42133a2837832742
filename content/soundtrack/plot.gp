# SPDX-License-Identifier: MIT
# Draws docs/soundtrack.png: gnuplot -e "curves='FILE'; picture='FILE.png'" plot.gp
# `curves` is what soundtrack_curves prints: loudness, bands and novelty over the beats of the show.
set terminal pngcairo size 1500, 1000 font "sans,11"
set output picture
set multiplot
set lmargin at screen 0.07
set rmargin at screen 0.985
set xrange [0:384]
set xtics 32 out nomirror
set mxtics 8
set grid front xtics lc rgb "#30000000"
unset key

sections = "0 16 64 160 184 256 288 352 384"
names = "Intro 'Gun Girl' Swapper Credits Tunnelgate Plasma Fountain Greets"
do for [i = 2:8] {
    set arrow i from first word(sections, i), graph 0 to first word(sections, i), graph 1 \
        nohead front lw 1.5 lc rgb "#a00000"
}

set tmargin at screen 0.94
set bmargin at screen 0.70
set ylabel "momentary loudness, LUFS"
set yrange [-40:-5]
do for [i = 1:8] {
    set label i word(names, i) at first (word(sections, i) + word(sections, i + 1)) / 2, screen 0.96 center
}
plot curves index 0 with filledcurves y1=-40 lc rgb "#4060a0"
do for [i = 1:8] {
    unset label i
}

set tmargin at screen 0.65
set bmargin at screen 0.32
set ylabel "bands, Hz"
set logscale y
set yrange [30:16000]
set ytics (30, 60, 120, 250, 500, "1k" 1000, "2k" 2000, "4k" 4000, "8k" 8000, "16k" 16000)
set cbrange [-75:-20]
set palette defined (0 "white", 1 "#c0d0f0", 2 "#4060a0", 3 "#101030", 4 "#a00000")
unset colorbox
set view map
set pm3d map corners2color c1
splot curves index 1 using 1:2:3 with pm3d
unset logscale y

set tmargin at screen 0.27
set bmargin at screen 0.06
set ylabel "novelty: bar against bar, dB"
set xlabel "beat of the show"
set yrange [0:35]
set ytics 5
set boxwidth 3.4
set style fill solid
plot curves index 2 with boxes lc rgb "#101030"
unset multiplot
