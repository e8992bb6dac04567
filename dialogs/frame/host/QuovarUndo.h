// The document's undo recorder, as the dialogs use it: one bracket around each command that changes geometry.
#pragma once

// Kinds of undo step and what their ten values hold.
inline constexpr unsigned int UNDO_SPOSTA = 1; // move: dx, dy, dz, then zeros
inline constexpr unsigned int UNDO_RUOTA = 3;  // rotate: 0, radians, axis, zeros; or 1, two points, degrees, two zeros
inline constexpr unsigned int UNDO_COPIA = 4;  // copy, mirror and mesh: zeros
inline constexpr unsigned int UNDO_DIVIDI = 5; // line division: zeros

class CQuovarUndo {
  public:
    virtual ~CQuovarUndo() = default;

    // Opens one step; only the host operations of one command may run before EndUndo with the same kind.
    virtual void BeginUndo(unsigned int tipo, double v1, double v2, double v3, double v4, double v5, double v6,
                           double v7, double v8, double v9, double v10) = 0;
    virtual void EndUndo(unsigned int tipo) = 0;
};
