#pragma once

#include "core/gamerecord.h"
#include "world/worldstate.h"

namespace umbrith {

// The viewport: 18 x 17 tiles, 432 x 408 pixels.
inline constexpr int ViewColumns = 18;
inline constexpr int ViewRows = 17;
inline constexpr int ViewWidth = ViewColumns * 24;
inline constexpr int ViewHeight = ViewRows * 24;

// Which part of the map the screen shows with the player at tile (tx, ty) on
// a map whose last column and row are w and h. The player walks in the
// picture near an edge and stays at column 8, row 9 in between.
struct Viewport {
    int tx = 0, ty = 0;
    double w = 0, h = 0;
    int fx = 0, lx = 0, fy = 0, ly = 0; // first and last column and row drawn
    int px = 0, py = 0;                 // the player figure's top left, in pixels

    // Whether an NPC at (x, y) is drawn: within the columns and rows that the
    // screen can show, ahead of the last row so its head can reach in.
    bool inRange(double x, double y) const;
    // The top left of a figure whose feet stand at (x, y), in pixels.
    QPoint figureAt(double x, double y) const;
};
Viewport ComputeViewport(int tx, int ty, double w, double h);

// UpdateLevel's drawing, into `scene` (432 x 408): the player moves by
// (dx, dy) twips, then the tiles, the NPCs and the player row by row from the
// top (the player last on his row), the night over all of it and the ground
// piles over the night. Does nothing at all, not even the move, when no game
// runs or a step's map change is pending; returns whether it drew.
bool ComposeLevel(Surface& scene, const GameRecord& game, WorldState& world, double dx, double dy);

// The ground piles on the screen: the icon on every visible cell with a pile.
void RedrawGIs(Surface& scene, const WorldState& world, const Viewport& view);

} // namespace umbrith
