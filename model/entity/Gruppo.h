// A named set of objects, each named by its kind and identifier: a node and a beam may bear the same number.
#pragma once

#include "model/entity/ElementoStrutturale.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

class CGruppo : public CElementoStrutturale {
    DECLARE_DYNCREATE(CGruppo)

    using CElementoStrutturale::operator=;

    CGruppo();
    CGruppo(const CGruppo&) = default;
    CGruppo& operator=(const CGruppo& altro) {
        operator=(Source(altro));
        return *this;
    }
    CElemento& operator=(CElemento& altro) override;

    int AddElemento(unsigned tipo, int id); // 0 when it is there already
    int RemoveElement(unsigned tipo, int id);
    // Puts a member back where RemoveElement took it from; the last one removed first, a group is as it was before.
    void RestoreElement(int place, unsigned tipo, int id);
    int IsElemento(unsigned tipo, int id) const { return GetIndexElemento(tipo, id) >= 0; }
    int GetIndexElemento(unsigned tipo, int id) const; // -1 for no member
    int GetSizeElementi() const { return static_cast<int>(m_members.size()); }
    unsigned GetElementKindAt(int i) const; // 0 for an index outside
    int GetElementIdAt(int i) const;        // 0 for an index outside

  private:
    struct Member {
        unsigned kind;
        int id;
    };
    static std::uint64_t Key(unsigned tipo, int id) {
        return static_cast<std::uint64_t>(tipo) << 32 | static_cast<std::uint32_t>(id);
    }

    std::vector<Member> m_members;
    std::unordered_map<std::uint64_t, int> m_positions; // in m_members
};
