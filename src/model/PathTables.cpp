#include "PathTables.h"

const char* const strPathImgNameTable[kPathImageCount] = {
    "DirArroundLeft1",  "DirArroundLeft2",  "DirArroundLeft3",  "DirArroundLeft4", "DirArroundRight1",
    "DirArroundRight2", "DirArroundRight3", "DirArroundRight4", "DirLine1",        "DirLine2",
    "DirLine3",         "DirLine4",         "DirTurnLeft1",     "DirTurnLeft2",    "DirTurnLeft3",
    "DirTurnLeft4",     "DirTurnRight1",    "DirTurnRight2",    "DirTurnRight3",   "DirTurnRight4",
    "DirStop",          "DirCircleLeft",    "DirCircleRight",
};

const float iPathImgSizeTable[kPathImageCount][2] = {
    {45, 42},   {46, 42},   {46, 42},   {45, 42},   {45, 45},   {45, 44},   {45, 44},   {45, 45},
    {66, 73},   {66, 73},   {66, 73},   {66, 73},   {106, 103}, {107, 103}, {106, 103}, {106, 105},
    {106, 105}, {106, 104}, {105, 104}, {105, 105}, {40, 38},   {33, 33},   {33, 33},
};

const qint32 iPathDirectOutTable[kPathImageCount] = {
    3, 0, 1, 2, 1, 2, 3, 0, 2, 3, 0, 1, 3, 0, 1, 2, 1, 2, 3, 0, 4, 4, 4,
};

// Three points do not lie where the rest of the table suggests: the exit of image 4 and of
// image 16 sit on the bottom edge (16's even a point below it), and the entry of image 5 one
// point below its picture. They stay as they are: placement follows the table, whatever the
// pictures show.
const float ptPathLocTable[kPathLocCount][4] = {
    {23, 42, 0, 7},  {46, 7, 11, 42},    {11, 0, 46, 23},  {0, 23, 23, 0},    {12, 45, 10, 45},
    {23, 45, 12, 0}, {26, 0, 0, 25},     {0, 10, 27, 45},  {29, 73, 29, 0},   {66, 33, 0, 33},
    {29, 0, 29, 73}, {0, 33, 66, 33},    {84, 103, 0, 7},  {107, 7, 12, 103}, {11, 0, 106, 83},
    {0, 84, 85, 0},  {14, 105, 10, 106}, {106, 84, 13, 0}, {87, 0, 0, 84},    {0, 10, 87, 105},
};
