// What tool dialogs do alike with their controls.
#pragma once

#include "model/values/FPoint.h"
#include "platform/window/DataExchange.h"

#include <initializer_list>

class CSpinButtonCtrl;

// Enables or disables controls together; a number that the dialog does not have is passed over.
void EnableControls(CWnd& dialog, std::initializer_list<int> ids, BOOL enable);
// The controls numbered first to last.
void EnableControls(CWnd& dialog, int first, int last, BOOL enable);

// The spin control of a whole number: its range and position, which its edit then shows. A number outside the range can
// still be typed. buddy is the edit, null where the template attaches the spin to the edit before it.
void InitSpin(CSpinButtonCtrl& spin, CWnd* buddy, int minimum, int maximum, int position);

// A coordinate triple and its three edits, which are numbered one after the other in the order x, y, z.
void DDX_Point(CDataExchange* pDX, int idX, double& x, double& y, double& z);
// The same for edits with numbers of their own.
void DDX_Point(CDataExchange* pDX, int idX, int idY, int idZ, double& x, double& y, double& z);

// What the edit holds, as a number; 0 for a text that is none, or none that is finite.
double NumberIn(const CWnd& dialog, int edit);
// The same for a whole number; one that no int holds becomes the nearest that it does.
int WholeNumberIn(const CWnd& dialog, int edit);

// Stores a point in three fields.
void StorePoint(const CFPoint& point, double& x, double& y, double& z);
