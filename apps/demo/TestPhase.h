#pragma once

/// How far a test at the instrument is; the controller's words for it stop at ControllerLink.
enum class TestPhase {
    Gone, ///< it has ended, or there never was one
    Starting,
    Running,
    Closing,
};
