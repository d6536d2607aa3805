#pragma once

/// What the camera's process gives up, in two steps: to find a camera it needs the plugins of the libraries,
/// the devices and PipeWire; for pictures nothing but what is open by then. See Walls.
namespace Kestrune::CameraWalls {

/// Before there is a second thread: no files of the user, no network, no other process or program. Whether it
/// is so.
bool raiseBeforeLooking();

/// Before the first picture, on any thread, for all: no file by name, no socket, no new code. Whether it is
/// so.
bool raiseBeforePictures();

} // namespace Kestrune::CameraWalls
