// What the node generation dialogs do alike.
#pragma once

// What the spin control beside a row's number of nodes offers.
inline constexpr int minSpinNodes = 1;
inline constexpr int maxSpinNodes = 100;       // on a line
inline constexpr int maxSpinCurveNodes = 1000; // on an arc or circle

// Tells the user when a generation operation of the document returned 0.
void ReportRejection(int generated);
