// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/drawing.h"

/// The part of OpenGL 1.1's fixed functions that small programs use, on OpenGL ES 3 or WebGL 2: a program that calls
/// OpenGL by its plain names links this instead of a desktop driver.
///
/// There are: the model-view and the projection stack, 32 matrices each; glBegin with lines, triangles, quads and
/// convex polygons; the current colour, of eight bits a channel; display lists (GL_COMPILE); clearing, depth, blending,
/// scissors, line width, viewport; one texture, of which the first texel colours everything, as there are no texture
/// coordinates; glPushAttrib for GL_COLOR_BUFFER_BIT and GL_SCISSOR_BIT; glGetError. Lighting, fog, feedback and the
/// rest are not there, and an enumerant that is not known gives GL_INVALID_ENUM.
///
/// Errors are the standard's: a refused call changes nothing, and the first error stays until it is asked for. Commands
/// of a display list act as if issued where it is called, between glBegin and glEnd too.
///
/// What is drawn is gathered: primitives and short lists are transformed here and drawn with one call, a list of more
/// than 32 elements waits in a buffer of the driver and takes a call of its own. Such a buffer is deleted at the end of
/// the frame in which its list was, unless an equal list has been made by then, which takes it over. Lines are drawn as
/// rectangles, so that they keep their place among the triangles and have their width everywhere; see Drawing.
///
/// There is one context, used by one thread. Within a frame nothing is allocated once the lists are compiled and the
/// longest primitive has been seen. Other calls to the driver must leave its program, its buffers, its vertex arrays
/// and its texture bindings alone.
namespace fixedgl {

/// Starts with OpenGL's initial state and no lists; the driver's context is current. Its viewport is kept.
/// @return false if the driver refuses the shader
bool open(Driver const& driver, Lines lines = Lines::Rectangles);

/// Makes lines so many times wider than they are asked to be, for screens of several pixels to a dot; 1 at first.
void scale_lines(float factor);

/// Has everything drawn that was asked for; call it at the end of a frame, before the picture is read or shown.
void flush();

/// Deletes what open and the lists have made; the driver's context is still current.
void close();

/// The same where the driver's context is lost and its objects with it.
void forget();

} // namespace fixedgl
