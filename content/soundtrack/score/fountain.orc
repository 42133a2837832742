; Fountain, 64 beats: the climax, all voices. Every four beats four flashes, a fifth of a beat apart.
gSFountainBass = {{ . g1! g1 g1~    . g1! g1 g2~    . g1! g1 g1~    . g1! g2~ g1~   |
                    . eb1! eb1 eb1~ . eb1! eb1 eb2~ . eb1! eb1 eb1~ . eb1! eb2~ f1~ |
                    . c2! c2 c2~    . c2! c2 c3~    . c2! c2 c2~    . c2! c3~ bb1~  |
                    . ab1! ab1 ab1~ . ab1! ab1 ab2~ . d2! d2 d2~    . d2! d3~ f#1~  }}

gSFountainStabs = {{ g2 . . . . . g2 . . . . . . . . . | g2 . . . . . g2 . . . . . . . . . |
                     c3 . . . . . c3 . . . . . . . . . | f2 . . . . . f2 . . . . . . . . . }}

; The four flashes of a bar: its chord falls across the room, a fifth of a beat apart. The bar is counted from 0.
opcode flashes, 0, iio
  ibar, ilevel, itranspose xin
  inotes[] fillarray 79, 74, 70, 67, 79, 75, 70, 67, 79, 75, 72, 67, 80, 75, 72, 68
  iflash = 0
  while iflash < 4 do
    at 4 * ibar + 0.2 * iflash, "Accent", 0.3, ilevel, inotes[4 * (ibar % 4) + iflash] + itranspose, iflash / 3
    iflash += 1
  od
endop

instr Fountain
  section p4, 1.5
  at 0, "Impact", 4, 1, 0, 1

  ; Every four beats: flashes on the chord of the bar
  ibar = 0
  while ibar < 16 do
    flashes ibar, 1.1, ibar < 12 ? 0 : 2
    ibar += 1
  od

  ; Every sixteen: a blow, a crash, and a fill before it
  iround = 0
  while iround < 64 do
    at iround, "Crash", 5, 0.8
    at iround, "Impact", 2, 0.8, iround < 48 ? 31 : 33, 0.6
    at iround + 8, "Crash", 3, 0.5
    hits iround + 7, iround + 8, "Clap", "..xx", 0.7
    if iround < 48 then
      hits iround + 14, iround + 15, "Tom", "x.xx", 0.9, 45, 0.2
      hits iround + 15, iround + 16, "Tom", "x.xr", 0.9, 38, 0.8
      hits iround + 15, iround + 16, "Snare", "xxrr", 0.7, 0, 0.3
      at iround + 12, "Riser", 4, 0.5, 79, 0.4
    endif
    iround += 16
  od

  ; Drums
  hits 0, 28, "Kick", "X... X... X... X...", 1, 0, 0.3
  hits 28, 32, "Kick", "X..x ..x. X.x. XxXx", 1, 0, 0.4
  hits 32, 63, "Kick", "X... X... X... X...", 1, 0, 0.35
  hits 0, 28, "Clap", ".... X... .... X...", 1
  hits 32, 63, "Clap", ".... X... .... X...", 1
  hits 0, 28, "OpenHat", "..X.", 0.85
  hits 32, 63, "OpenHat", "..X.", 0.9
  hits 0, 28, "Hat", "xoXo xoXo xoXo xoXr", 0.55
  hits 32, 63, "Hat", "xoXo xoXo xoXo xoXr", 0.6
  hits 16, 28, "Ride", "x.x.", 0.5
  hits 48, 63, "Ride", "X.x.", 0.7

  veil 28, 31.9, 0.6, 0.1
  veil 32, 32.1, 0, 0

  ; Ground
  play 0, 28, "Bass", gSFountainBass, 0.92, 0, 0.6
  play 28, 32, "Reese", "ab1 - - - - - - - d2 - - - f#1 - - -", 0.9, 0, 0.8
  play 32, 48, "Bass", gSFountainBass, 0.92, 0, 0.95
  play 32, 48, "Reese", "g1 - - - | eb1 - - - | c2 - - - | ab1 - d2 -", 0.5, 12, 0.7, 1
  play 48, 63, "Bass", gSFountainBass, 0.92, 2, 0.8
  play 0, 48, "Pad", gSChords, 0.7, 0, 0.5, 1
  play 48, 63, "Pad", gSChords, 0.8, 2, 0.7, 1

  ; First round: the theme in octaves. Second: its second voice below, arpeggios, and the floor breaks. Third, inside: the theme low,
  ; its canon a beat behind. Fourth: all of it, a whole tone up.
  play 0, 16,  "Lead", gSTheme, 0.9, 0, 0.7
  play 16, 32, "Lead", gSThemeBelow, 0.85, -12, 1
  play 16, 32, "Wail", gSTheme, 0.7, 0, 0.9
  play 0, 32,  "Wail", gSTheme, 0.75, 12, 0.7
  play 16, 32, "Arp", gSArp, 0.6, 0, 0.7
  play 16, 32, "Stab", gSFountainStabs, 0.55, 0, 0.6

  play 32, 48, "Lead", gSTheme, 0.85, -12, 0.9
  play 33, 48, "Wail", gSTheme, 0.5, 12, 0.5
  play 32, 48, "Arp", gSArp, 0.55, 12, 0.6
  play 32, 48, "Choir", gSChords, 0.6, 12, 0.8, 1

  play 48, 63, "Lead", gSTheme, 0.9, 2, 1
  play 48, 63, "Lead", gSThemeBelow, 0.55, 2, 0.7
  play 48, 63, "Wail", gSTheme, 0.85, 14, 0.9
  play 48, 63, "Arp", gSArp, 0.55, 14, 0.8
  play 48, 63, "Choir", gSChords, 0.6, 14, 1, 1
  play 48, 63, "Bell", gSThemeBones, 0.4, 14, 0.6
  at 56, "Riser", 7, 0.5, 86, 0.6
  hits 61, 62, "Snare", "xoxo", 0.6, 0, 0.2
  hits 62, 63, "Snare", "XXrr", 0.9, 0, 0.6
  hush 61.86, 62
  chop 62, 63, 64
endin
