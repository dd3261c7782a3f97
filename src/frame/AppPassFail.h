#pragma once

/** The verdict of an application's run, as the framework numbers it. */
enum class AppPassFail {
    None = 0, ///< no verdict
    Pass = 1,
    Fail = 2,
    Summary = 3, ///< the results are to be read, there is no single verdict
};
