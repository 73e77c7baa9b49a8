// What the page's script shows, as JSON.
#pragma once

#include <string>

#include "publish/published.h"
#include "publish/web/web_page.h"

namespace tricklet {

/// An object with the members
///
///   scoring    heading of the points: "MP", "XIMP"
///   pairs      [{"number", "names"}], to which the tables refer by their position
///   entrants   [{"label", "pairs": [position]}]: those whom a reader can choose
///   boards     in the order of their numbers, as below
///   ranking    {"unit": "%" or "IMP", "tables": [{"heading", "rows": [{"place", "entrant",
///              "number", "names", "boards", "total", "percentage"}]}], "notes": [sentence]}
///   report     only where plays have been reviewed: {"columns": [{"heading", "meaning"}],
///              "tables": [{"heading", "rows": [{"entrant", "number", "names", "cells": [text]}]}],
///              "notes": [sentence]}
///
/// A board: "number"; "dealer" 0..3, North first; "vulnerable" 0..3, 1 North-South, 2 East-West;
/// "hands" ["AKQ.T98.." by suits from spades on], North first; "points" [0..37], only with
/// "complete"; "calls" ["1S"]; "contract" "4Sx"; "declarer" 0..3; "tricks" [[spades, hearts,
/// diamonds, clubs, no-trump]], North, South, East, West; "par" "Par 4S= NS +420"; "notes"
/// with its lines, only where they are chosen; "tables".
///
/// A table: "pairs" [North-South, East-West], -1 for nobody; "contract"; "declarer"; "lead" "SK";
/// "taken" 0..13; "result" over or under the contract; "score" of North-South, or "ruling" as text;
/// "points" and "percent", each [North-South, East-West] or null; "calls"; "hands" where they
/// differ from the board's; "play" "SKS3..", the cards as far as they are legal; "leaders" "WNN..",
/// one for each trick and for what comes after a complete one; "trumps" 0..4, 4 no-trump; "end",
/// what ends the play before its last card; of a play that has been reviewed "given" "0010..", the
/// tricks 0..d that each card gave away; "against" par, North-South's points, and "why" the side
/// that beat it did. What is not known is left out.
std::string WebData(const Published& published, const WebChoices& choices);

}  // namespace tricklet
