#include "installer/HostCatalogue.h"

// The first two versions are 32-bit programs. Detection never finds them, but
// they stay in the catalogue: the slots behind them keep their numbers.
const std::array<HostSlot, kHostSlotCount> kHostCatalogue = {{
    {"CS3", "Ostrel32"},
    {"CS4", "Ostrel32"},
    {"CS5", "Ostrel64"},
    {"CS5.5", "Ostrel64"},
    {"CS6", "Ostrel64"},
    {"CC", "Ostrel64"},
    {"CC 2014", "Ostrel64"},
    {"CC 2015", "Ostrel64"},
    {"CC 2015.3", "Ostrel64"},
    {"CC 2017", "Ostrel64"},
    {"CC 2018", "Ostrel64"},
    {"CC 2019", "Ostrel64"},
    {"2020", "Ostrel64"},
    {"", "Ostrel64"},
    {"Custom", "Ostrel64"},
}};
