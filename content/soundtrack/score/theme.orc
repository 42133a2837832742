; What the sections share: G minor, one theme of four bars, its chords and its roots.
; Three-three-two is the rhythm of everything; bar four slides e flat, d, a flat, f sharp round the tonic.

gSTheme = {{
  g4  -  -  d5  -  -  eb5 -   d5  -  -  bb4 -  -  c5  -  |
  bb4 -  -  -   -  -  g4  -   bb4 -  -  c5  -  -  d5  -  |
  eb5 -  -  d5  -  -  c5  -   eb5 -  -  g5  -  -  f5  -  |
  eb5 -  -  -   d5 -  -   -   ab4 -  -  -   f#4 - -   -  }}

; Its second half alone
gSThemeAnswer = {{
  eb5 -  -  d5  -  -  c5  -   eb5 -  -  g5  -  -  f5  -  |
  eb5 -  -  -   d5 -  -   -   ab4 -  -  -   f#4 - -   -  }}

; The theme's bones: its long notes only
gSThemeBones = {{
  g4  -  -  -   -  -  -   -   d5  -  -  -   -  -  -   -  |
  bb4 -  -  -   -  -  -   -   -   -  -  -   d5 -  -   -  |
  eb5 -  -  -   -  -  -   -   g5  -  -  -   -  -  f5  -  |
  eb5 -  -  -   d5 -  -   -   ab4 -  -  -   f#4 - -   -  }}

; A second voice under the theme
gSThemeBelow = {{
  bb3 -  -  g4  -  -  g4  -   g4  -  -  g4  -  -  a4  -  |
  g4  -  -  -   -  -  eb4 -   g4  -  -  ab4 -  -  bb4 -  |
  c5  -  -  g4  -  -  g4  -   c5  -  -  eb5 -  -  d5  -  |
  c5  -  -  -   ab4 - -   -   f#4 -  -  -   d4  -  -  -  }}

; Chords, one step a beat
gSChords = {{
  g3+bb3+d4  -  -  -  |
  g3+bb3+eb4 -  -  -  |
  g3+c4+eb4  -  -  -  |
  ab3+c4+eb4 -  f#3+a3+c4+d4 - }}

; Roots, one step a beat
gSRoots = {{ g1 - - - | eb1 - - - | c2 - - - | ab1 - d2 - }}

; Sixteenth arpeggios over the same chords
gSArp = {{
  g4 bb4 d5 g5  d5 bb4 g4 d5   g5 d5 bb4 d5  g4 d5 bb5 g5  |
  g4 bb4 eb5 g5 eb5 bb4 g4 eb5 g5 eb5 bb4 eb5 g4 eb5 bb5 g5 |
  g4 c5 eb5 g5  eb5 c5 g4 eb5  g5 eb5 c5 eb5 g4 eb5 c6 g5  |
  ab4 c5 eb5 ab5 eb5 c5 ab4 eb5 f#4 a4 c5 d5  f#5 d5 c5 a4 }}
