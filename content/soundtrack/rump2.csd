<CsoundSynthesizer>
; Hard Silence, the soundtrack. 132 beats a minute, beat 0 on the first sample, 384 beats and a tail.
; Rendered by the script `render` beside this file; README.md says how the score is written.
<CsOptions>
--nosound --sample-accurate
</CsOptions>

<CsInstruments>
sr     = 48000
ksmps  = 32
nchnls = 2
0dbfs  = 1
seed 2012 ; every render draws the same numbers

; What is asked for (see `render`): the mix, or with one of these macros something to measure
#define SCORE ##
#define MIX ##
#ifdef EVENTS
#undef SCORE
#end
#ifdef VOICES
#undef SCORE
#undef MIX
#end
#ifdef STEMS
#undef MIX
#end

#include "orchestra/pattern.orc"
#include "orchestra/bus.orc"

; The voices
#include "orchestra/kick.orc"
#include "orchestra/snare.orc"
#include "orchestra/hats.orc"
#include "orchestra/impacts.orc"
#include "orchestra/effects.orc"
#include "orchestra/bass.orc"
#include "orchestra/acid.orc"
#include "orchestra/lead.orc"
#include "orchestra/stab.orc"
#include "orchestra/pad.orc"
#include "orchestra/arp.orc"
#include "orchestra/bell.orc"

; What they run through, in this order
#include "orchestra/space.orc"
#ifdef STEMS
#include "orchestra/stems.orc"
#end
#ifdef VOICES
#include "orchestra/audition.orc"
#end
#include "orchestra/limiter.orc"
#include "orchestra/master.orc"

; What they play
#include "score/theme.orc"
#include "score/intro.orc"
#include "score/gungirl.orc"
#include "score/swapper.orc"
#include "score/credits.orc"
#include "score/tunnelgate.orc"
#include "score/plasma.orc"
#include "score/fountain.orc"
#include "score/greets.orc"
</CsInstruments>

<CsScore>
t 0 132

; The show: each section schedules all its notes before the first sample is made.
;                 first beat  beats
i "Intro"      0 0      0         16
i "GunGirl"    0 0     16         48
i "Swapper"    0 0     64         96
i "Credits"    0 0    160         24
i "Tunnelgate" 0 0    184         72
i "Plasma"     0 0    256         32
i "Fountain"   0 0    288         64
i "Greets"     0 0    352         32

; 384 beats and 8.75 of tail, with the limiter's look-ahead
i "Space"    0 392.75
i "Master"   0 392.75
e
</CsScore>
</CsoundSynthesizer>
