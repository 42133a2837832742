; Arp: a short pulse, thrown from side to side. tone: brightness.
giArpSide = 0.45 ; where the next note goes
instr Arp
  p3 = p3 + 0.08
  icps = cpsmidinn(p5)
  a1 vco2 0.5, icps, 2, 0.28
  a2 vco2 0.5, icps * 1.005, 0, 0.5, 0.4
  kcut expseg 1600 + 8000 * p6, 0.1, 700 + 1800 * p6, 10, 500
  aline moogladder2 a1 + a2, kcut, 0.25
  aenv expseg 1, p3, 0.02
  afade linseg 0, 0.0015, 1, p3 - 0.0115, 1, 0.01, 0
  giArpSide = -giArpSide
  aleft, aright place aline * aenv * afade * 0.52 * p4, giArpSide
  ducked aleft, aright, 0.14, 0.22
endin
