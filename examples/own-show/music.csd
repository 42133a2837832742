; The music: a bass drum on every beat of 132 a minute, and four notes over it.
<CsoundSynthesizer>
<CsInstruments>
sr = 48000
ksmps = 16
nchnls = 2
0dbfs = 1
instr Drum
  kpitch expseg 180, 0.06, 50, p3, 45
  kloud expseg 0.7, p3, 0.001
  asound oscili kloud, kpitch
  outs asound, asound
endin
instr Note
  kloud linseg 0, 0.01, 0.15, p3 - 0.02, 0.02, 0.01, 0
  asound vco2 kloud, cpsmidinn(p4)
  outs asound, asound
endin
</CsInstruments>
<CsScore>
t 0 132
{ 16 BEAT
i "Drum" $BEAT 0.5
}
{ 4 BAR
i "Note" [4 * $BAR] 1 45
i "Note" [4 * $BAR + 1.5] 0.5 57
i "Note" [4 * $BAR + 2] 1 52
i "Note" [4 * $BAR + 3.5] 0.5 60
}
</CsScore>
</CsoundSynthesizer>
