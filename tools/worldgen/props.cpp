#include "props.h"

#include "art.h"
#include "palette.h"

namespace worldgen {

void drawBarrel(Image& img)
{
    Mask body(24, 24), top(24, 24);
    body.ellipse(12, 13, 7.5, 9).rect(5, 8, 15, 11);
    body.cut(Mask(24, 24).rect(0, 21, 24, 3));
    top.ellipse(12, 6.5, 6.5, 2.6);
    dropShadow(img, body, 2, 1);
    drawSolid(img, body, pal::kWood, pal::kInk, 0.3);
    for (int y : {8, 17}) img.fill(5, y, 15, 1, pal::kIron[1]);
    paintRound(img, top, pal::kPlank, 0.5);
    img.set(10, 6, pal::kPlank[1]);
    img.set(14, 7, pal::kPlank[1]);
}

void drawCrate(Image& img)
{
    Mask box(24, 24), lid(24, 24);
    box.rect(3, 7, 18, 14);
    lid.rect(3, 3, 18, 4);
    dropShadow(img, Mask(box).add(lid), 2, 1);
    drawBlock(img, box, pal::kPlank, pal::kInk);
    drawBlock(img, lid, pal::kPlank, pal::kInk, 3);
    Mask brace(24, 24);
    brace.line(4, 20, 20, 8, 1.5);
    paintFlat(img, brace, pal::kPlank[1]);
    img.fill(3, 13, 18, 1, pal::kPlank[1]);
}

void drawChest(Image& img, bool open)
{
    Mask body(24, 24), lid(24, 24);
    body.rect(3, 11, 18, 10);
    if (open) lid.rect(3, 3, 18, 6);
    else lid.rect(3, 5, 18, 6).ellipse(12, 6, 9, 2.5);
    dropShadow(img, Mask(body).add(lid), 2, 1);
    drawBlock(img, body, pal::kWood, pal::kInk);
    drawBlock(img, lid, pal::kWood, pal::kInk, 3);
    if (open) {
        img.fill(4, 9, 16, 2, pal::kInk);
        for (int x = 5; x < 19; x += 3) {
            img.set(x, 10, pal::kGold[4]);
            img.set(x + 1, 10, pal::kGold[2]);
        }
    }
    for (int x : {5, 18}) img.fill(x, open ? 3 : 4, 1, 17, pal::kGold[2]);
    Mask lock(24, 24);
    lock.rect(11, open ? 11 : 10, 3, 4);
    drawBlock(img, lock, pal::kGold, pal::kInk, 3);
}

} // namespace worldgen
