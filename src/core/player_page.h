#pragma once

#include "controls/control_array.h"
#include "controls/indicators.h"
#include "controls/list_box.h"

namespace kavro {

/// The movie page's controls that loads and row lists touch.
struct PlayerPage
{
    explicit PlayerPage(Form &frmMain);

    ListBox Combo1;                       ///< the document's lines as the player lists them
    Slider Slider1;                       ///< place in the movie, seconds
    ControlArray<Button, 0, 5> Command8;  ///< play, pause, stop and their kin
    ControlArray<Button, 0, 1> Command49; ///< set start, set end from the movie
    Label Label27;                        ///< state of the player
    Timer timPlayer;                      ///< clock of movie and script, 10 ms a tick
};

} // namespace kavro
