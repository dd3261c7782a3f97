#pragma once

/** How wide an application wants its mission-control panel to be; never wider than the frame. */
enum class AppMissionControlWidth {
    Narrow, ///< 480 px
    Medium, ///< 720 px, the default
    Wide, ///< all of the frame
};
