// A node's restraint: six fixities.
#pragma once

#include "platform/Object.h"

class CVincolo : public CObject {
    DECLARE_DYNAMIC(CVincolo)

    // Bits of GetMaschera, translations then rotations.
    enum Componente : unsigned { Tx = 1, Ty = 2, Tz = 4, Rx = 8, Ry = 16, Rz = 32, Tutti = 63 };

    CVincolo() = default; // everything free
    explicit CVincolo(unsigned maschera) : m_nMaschera(static_cast<unsigned char>(maschera & Tutti)) {}
    CVincolo(int tx, int ty, int tz, int rx, int ry, int rz)
        : CVincolo((tx ? Tx : 0u) | (ty ? Ty : 0u) | (tz ? Tz : 0u) | (rx ? Rx : 0u) | (ry ? Ry : 0u) |
                   (rz ? Rz : 0u)) {}

    // Non-zero when fixed.
    int GetTraslazioneX() const { return IsFisso(0); }
    int GetTraslazioneY() const { return IsFisso(1); }
    int GetTraslazioneZ() const { return IsFisso(2); }
    int GetRotazioneX() const { return IsFisso(3); }
    int GetRotazioneY() const { return IsFisso(4); }
    int GetRotazioneZ() const { return IsFisso(5); }

    int IsFisso(int i) const { return i >= 0 && i < 6 ? m_nMaschera >> i & 1 : 0; } // 0..2 translations, 3..5 rotations
    void SetFisso(int i, int fisso) {
        if (i >= 0 && i < 6)
            m_nMaschera = static_cast<unsigned char>((m_nMaschera & ~(1u << i)) | (fisso ? 1u << i : 0u));
    }
    unsigned GetMaschera() const { return m_nMaschera; }
    void SetMaschera(unsigned maschera) { m_nMaschera = static_cast<unsigned char>(maschera & Tutti); }

  private:
    unsigned char m_nMaschera = 0;
};
