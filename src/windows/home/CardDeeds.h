// What can be done with a card of the home, besides opening it, as one table: its menu, its keys
// and what each does. A new deed is a new row.
#pragma once

#include <span>

namespace neb {

struct HomeCard;

struct CardDeed {
    const char* Name;
    const char* Text;
    const char* Keys;
    const char* Icon;
    bool Changes;  // not in a database that cannot be changed
    bool (*Fits)(const HomeCard& Card);
    void (*Do)(const HomeCard& Card);  // nullptr: as Enter does
    bool EndsGroup = false;
};

std::span<const CardDeed> CardDeeds();
// Whether this can be done with this card now.
bool IsOffered(const CardDeed& Deed, const HomeCard& Card);
// Does it, if so; a fault is told in the status bar.
void DoDeed(const CardDeed& Deed, const HomeCard& Card);

}  // namespace neb
