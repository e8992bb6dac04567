// A node's restraint: six fixities.
#pragma once

#include "platform/core/Object.h"

class CVincolo : public CObject {
    DECLARE_DYNAMIC(CVincolo)

    // Bits of GetMask, translations then rotations.
    enum Componente : unsigned { Tx = 1, Ty = 2, Tz = 4, Rx = 8, Ry = 16, Rz = 32, All = 63 };

    CVincolo() = default; // everything free
    explicit CVincolo(unsigned maschera) : m_nMask(static_cast<unsigned char>(maschera & All)) {}
    CVincolo(int tx, int ty, int tz, int rx, int ry, int rz)
        : CVincolo((tx ? Tx : 0u) | (ty ? Ty : 0u) | (tz ? Tz : 0u) | (rx ? Rx : 0u) | (ry ? Ry : 0u) |
                   (rz ? Rz : 0u)) {}

    // Non-zero when fixed.
    int GetRotationX() const { return IsFixed(3); }
    int GetRotationY() const { return IsFixed(4); }
    int GetRotationZ() const { return IsFixed(5); }

    int IsFixed(int i) const { return i >= 0 && i < 6 ? m_nMask >> i & 1 : 0; } // 0..2 translations, 3..5 rotations
    void SetFixed(int i, int fisso) {
        if (i >= 0 && i < 6)
            m_nMask = static_cast<unsigned char>((m_nMask & ~(1u << i)) | (fisso ? 1u << i : 0u));
    }
    unsigned GetMask() const { return m_nMask; }
    void SetMask(unsigned maschera) { m_nMask = static_cast<unsigned char>(maschera & All); }

  private:
    unsigned char m_nMask = 0;
};
