; SPDX-License-Identifier: MIT
; Gun Girl, 48 beats: the pieces close in for 4, she stands; at 8 the camera jumps and the groove starts;
; the background turns at 16, 24, 32 and 40, and something joins each time.

gSGunArp   = "g4! . . ab4 . . g4 . . . . f#4! . . g4 . | . . . ab4! . . g4 . . bb4 . . a4 . ab4 ."
gSGunBass  = "g1! . . g1 . . g1 . g2~ . . g1 . . f1 . | g1! . . g1 . . g1 . g2~ . . bb1 . . c2 ."
gSGunBass2 = "g1! . . g1 . . g1 . g2~ . . g1 . . f1 . | g1! . . g1 . . ab1 . ab2~ . . f#1 . . f#1 f#1"

instr GunGirl
  section p4, -0.8

  ; Pieces close in: faster and faster, all towards one point
  at 0, "Impact", 2, 1, 0, 0.3
  at 0, "Crash", 3, 0.5
  at 0, "Riser", 3.96, 0.8, 74, 0.5
  at 0, "Drone", 4, 0.7, 43, 0.4
  itick = 0
  ibeat = 0.25
  while ibeat < 3.9 do
    at ibeat, "Tick", 0.1, 0.35 + 0.14 * ibeat, 76 + itick % 5 * 3, itick % 2 == 0 ? 0.1 : 0.9
    ibeat += 0.42 * (1 - ibeat / 4.2)
    itick += 1
  od
  at 3, "Suck", 1, 0.8

  ; She stands
  at 4, "Impact", 3, 1.3, 0, 0.8
  at 4, "Kick", 0.5, 1, 0, 0.5
  at 4, "Stab", 0.6, 1, 43, 0.7
  at 4, "Reese", 3.5, 0.8, 31, 0.5
  at 4, "Faller", 3, 0.7
  hits 5, 8, "Hat", "..o. ..o. ..oo", 0.6
  at 6, "Kick", 0.5, 0.8
  ; The gun is cocked
  at 7, "Tick", 0.1, 1.4, 62, 0.5
  at 7.25, "Tick", 0.1, 1.6, 69, 0.5
  hits 7.5, 8, "Snare", "xX", 0.8, 0, 0.1

  ; Groove
  at 8, "Crash", 4, 0.7
  hits 8, 43, "Kick", "X... X... X... X...", 1, 0, 0.1
  play 8, 24, "Bass", gSGunBass, 1.32, 0, 0.4
  play 24, 40, "Bass", gSGunBass, 1.28, 0, 0.35
  play 40, 45, "Bass", gSGunBass2, 1.1, 0, 0.6
  hits 8, 47, "Hat", "o.xo o.xo o.xo o.xx", 0.36
  play 8, 32, "Arp", gSGunArp, 0.85, -12, 0.25
  hits 8, 16, "Tick", "..x. .... ...x ..o.", 0.7, 79, 0.8

  ; Turn: claps, the gun answers
  at 16, "Knock", 2, 0.6, 0, 0.4
  at 16, "Crash", 4, 0.35
  hits 16, 44, "Clap", ".... X... .... X...", 0.7
  hits 8, 16, "OpenHat", "..x. ..x. ..x. ..x.", 0.4
  hits 16, 47, "OpenHat", "..x. ..x. ..x. ..x.", 0.4
  play 16, 24, "Zap", ". . . . . . . . . . g4 . . . . . | . . . . . . . . . . bb4 . . c5 . .", 0.45, 0, 0.3
  play 16, 32, "Growl", ". . . . . . . . . . . . . . . . | . . . . . . . . g1! - . g1 . . f1 -", 0.8, 0, 0.8

  ; Turn: a stab on the three-three-two
  at 24, "Knock", 2, 0.6, 0, 0.4
  at 24, "Crash", 4, 0.35
  play 24, 40, "Stab", "g2 . . g2 . . . . . . . . . . . . | g2 . . g2 . . bb2 . . . . f2 . . . .", 0.65, 0, 0.15
  hits 8, 24, "Tick", "x.o. ..x. .o.. x.o.", 0.5, 93, 0.15
  hits 24, 47, "Hat", ".o.. .o.. .o.. .o..", 0.4, 0, 1
  hits 22, 24, "Tom", "..x. x.xx", 0.55, 43, 0.3
  hits 24, 32, "Tom", ".... ...o ..x. .... | .... ...o ..x. .o..", 0.7, 45, 0.8
  hits 24, 44, "Snare", ".... ...o .... .... | .... ...o .... .o.o", 0.5, 0, 0.3
  at 28, "Zap", 0.2, 0.6, 55, 1

  ; Turn: the theme's first half, low, one lead asking and one answering
  at 32, "Knock", 2, 0.6, 0, 0.4
  at 32, "Crash", 4, 0.35
  hits 30, 32, "Snare", "..o. x.xr", 0.7, 0, 0.2
  play 32, 40, "Lead", gSThemeAsk, 0.75, -12, 0.2
  play 32, 40, "Wail", gSThemeAnswer, 0.75, 0, 0.2
  play 32, 46, "Ride", "g4 . . . g4 . . . g4 . . . g4 . . .", 0.9, 0, 0.6

  ; Turn: its second half from one throat, a step brighter, and the floor is drawn away up to the edge
  at 40, "Knock", 2, 0.7, 0, 0.5
  at 40, "Crash", 4, 0.35
  hits 38, 40, "Tom", "x.x. xxxx", 0.6, 38, 0.7
  play 40, 47, "Lead", gSThemeClose, 0.7, -12, 0.35
  thin 39, 47
  at 39, "Riser", 8, 1, 84, 0.6
  at 43, "Riser", 4, 1.4, 91, 0.3
  hits 43, 44, "Kick", "X.x.", 0.9, 0, 0.2
  hits 42, 44, "Snare", "o.o. oxox", 0.6, 0, 0.1
  hits 44, 46, "Snare", "x.x. xxxx", 0.9, 0, 0.3
  hits 46, 47, "Snare", "XrXr", 1.2, 0, 0.6
  hits 44, 47, "Hat", "xxxx", 0.7
  chop 46, 47, 48
endin
