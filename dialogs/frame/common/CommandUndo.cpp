#include "dialogs/frame/common/CommandUndo.h"

#include "dialogs/frame/host/QuovarDoc.h"

CommandUndo::CommandUndo(CQuovarDoc& doc, unsigned int kind, const Record& r) : m_undo(*doc.m_pUndo), m_kind(kind) {
    m_undo.BeginUndo(kind, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], r[8], r[9]);
}

CommandUndo::~CommandUndo() noexcept(false) {
    m_undo.EndUndo(m_kind);
}
