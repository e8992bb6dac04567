// What the node generation dialogs do alike.
#pragma once

class CSpinButtonCtrl;

// The spin control beside a node count: 1 to 100, at 1. A count outside that range can still be typed.
void InitNodeSpin(CSpinButtonCtrl& spin);

// Tells the user when a generation operation of the document returned 0.
void ReportRejection(int generated);
