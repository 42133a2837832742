; SPDX-License-Identifier: MIT
; What the sections share: G minor, one theme of four bars, its chords and its roots.
; A A' A B. The hook A is one bar in three-three-two: a fifth up, a half step on, and back; A' climbs instead of
; falling; B is new and closes from a flat to f sharp, round the tonic.

gSTheme = {{
  g4  -  -  d5  -  -  eb5 -   d5  -  .  g4  -  .  bb4 .  |
  g4  -  -  d5  -  -  eb5 -   g5  -  .  f5  -  .  eb5 .  |
  g4  -  -  d5  -  -  eb5 -   d5  -  .  g4  -  .  bb4 .  |
  c5  -  -  eb5 -  .  ab4 -   f#4 -  -  -   -  .  d5  .  }}

; Its second half alone
gSThemeClose = {{
  g4  -  -  d5  -  -  eb5 -   d5  -  .  g4  -  .  bb4 .  |
  c5  -  -  eb5 -  .  ab4 -   f#4 -  -  -   -  .  d5  .  }}

; The same for two leads: one asks the first half of each bar, the other answers
gSThemeAsk = {{
  g4  -  -  d5  -  -  eb5 .   .   .  .  .   .  .  .   .  |
  g4  -  -  d5  -  -  eb5 .   .   .  .  .   .  .  .   .  |
  g4  -  -  d5  -  -  eb5 .   .   .  .  .   .  .  .   .  |
  c5  -  -  eb5 -  .  ab4 .   .   .  .  .   .  .  .   .  }}
gSThemeAnswer = {{
  .   .  .  .   .  .  .   .   d5  -  .  g4  -  .  bb4 .  |
  .   .  .  .   .  .  .   .   g5  -  .  f5  -  .  eb5 .  |
  .   .  .  .   .  .  .   .   d5  -  .  g4  -  .  bb4 .  |
  .   .  .  .   .  .  .   .   f#4 -  -  -   -  .  d5  .  }}

; The theme's bones: its long notes only
gSThemeBones = {{
  g4  -  -  -   -  -  -   -   d5  -  -  -   -  -  -   -  |
  g4  -  -  -   -  -  -   -   g5  -  -  -   -  -  -   -  |
  g4  -  -  -   -  -  -   -   d5  -  -  -   -  -  -   -  |
  c5  -  -  -   -  -  ab4 -   f#4 -  -  -   -  -  -   -  }}

; A second voice under the theme
gSThemeBelow = {{
  bb3 -  -  g4  -  -  g4  -   g4  -  .  d4  -  .  g4  .  |
  bb3 -  -  g4  -  -  bb4 -   bb4 -  .  bb4 -  .  g4  .  |
  bb3 -  -  f4  -  -  g4  -   f4  -  .  d4  -  .  f4  .  |
  ab4 -  -  c5  -  .  eb4 -   d4  -  -  -   -  .  a4  .  }}

; A slow melody against it
gSCounter = {{
  d5  -  -  -   -  -  -   -   c5  -  -  -   bb4 - -   -  |
  bb4 -  -  -   -  -  -   -   c5  -  -  -   eb5 - -   -  |
  f5  -  -  -   -  -  -   -   d5  -  -  -   c5  - -   -  |
  c5  -  -  -   eb5 - -   -   d5  -  -  -   f#5 - -   -  }}

; Chords and roots, one step a beat: the minor, and the theme's second dress, which starts a third lower and climbs
gSChords = {{
  g3+bb3+d4  -  -  -  |
  g3+bb3+eb4 -  -  -  |
  f3+bb3+d4  -  -  -  |
  ab3+c4+eb4 -  f#3+a3+c4+d4 - }}
gSRoots = {{ g1 - - - | eb1 - - - | bb1 - - - | ab1 - d2 - }}

gSChordsBright = {{
  g3+bb3+eb4 -  -  -  |
  f3+a3+c4   -  -  -  |
  g3+bb3+d4  -  -  -  |
  ab3+c4+eb4 -  f#3+a3+c4+d4 - }}
gSRootsBright = {{ eb1 - - - | f1 - - - | g1 - - - | ab1 - d2 - }}

; Four to the floor on the same roots, one step a beat
gSKicks = {{ g1! g1! g1! g1! | eb1! eb1! eb1! eb1! | bb1! bb1! bb1! bb1! | ab1! ab1! d2! d2! }}

; Sixteenth arpeggios over the same chords
gSArp = {{
  g4 bb4 d5 g5  d5 bb4 g4 d5   g5 d5 bb4 d5  g4 d5 bb5 g5  |
  g4 bb4 eb5 g5 eb5 bb4 g4 eb5 g5 eb5 bb4 eb5 g4 eb5 bb5 g5 |
  f4 bb4 d5 f5  d5 bb4 f4 d5   f5 d5 bb4 d5  f4 d5 bb5 f5  |
  ab4 c5 eb5 ab5 eb5 c5 ab4 eb5 f#4 a4 c5 d5  f#5 d5 c5 a4 }}
gSArpBright = {{
  g4 bb4 eb5 g5 eb5 bb4 g4 eb5 g5 eb5 bb4 eb5 g4 eb5 bb5 g5 |
  f4 a4 c5 f5   c5 a4 f4 c5    f5 c5 a4 c5   f4 c5 a5 f5   |
  g4 bb4 d5 g5  d5 bb4 g4 d5   g5 d5 bb4 d5  g4 d5 bb5 g5  |
  ab4 c5 eb5 ab5 eb5 c5 ab4 eb5 f#4 a4 c5 d5  f#5 d5 c5 a4 }}
