#include "host/files/LoadValues.h"

#include "model/element/TipoElemento.h"
#include "model/load/Carico.h"

namespace host {

namespace {

void Add(LoadValues& list, double& value) {
    list.values[static_cast<std::size_t>(list.count++)] = &value;
}

void Add(LoadValues& list, CFPoint& point) {
    Add(list, point.x);
    Add(list, point.y);
    Add(list, point.z);
}

template <class T>
T& As(CCarico& load) {
    return static_cast<T&>(load);
}

} // namespace

LoadValues ValuesOf(CCarico& load) {
    LoadValues list;
    switch (load.GetTipoElemento()) {
    case TipoElemento::CaricoNodale:
        Add(list, As<CCaricoNodale>(load).GetForceVector());
        Add(list, As<CCaricoNodale>(load).GetMomentVector());
        break;
    case TipoElemento::CaricoSpostamento:
        Add(list, As<CCaricoSpostamento>(load).GetDisplacement());
        Add(list, As<CCaricoSpostamento>(load).GetRotation());
        break;
    case TipoElemento::CaricoUniforme:
        Add(list, As<CCaricoUniforme>(load).GetCarico());
        break;
    case TipoElemento::CaricoTrapezoidale:
        for (int axis = 0; axis < 3; ++axis) {
            auto& part = As<CCaricoTrapezoidale>(load).GetStretch(axis);
            Add(list, part.da);
            Add(list, part.a);
            Add(list, part.inizio);
            Add(list, part.fine);
        }
        break;
    case TipoElemento::CaricoConcentrato:
        Add(list, As<CCaricoConcentrato>(load).GetForceVector());
        Add(list, As<CCaricoConcentrato>(load).GetMomentVector());
        Add(list, As<CCaricoConcentrato>(load).GetDistance());
        break;
    case TipoElemento::CaricoTemperatura:
        Add(list, As<CCaricoTemperatura>(load).GetTemperature());
        Add(list, As<CCaricoTemperatura>(load).GetGradient2());
        Add(list, As<CCaricoTemperatura>(load).GetGradient3());
        Add(list, As<CCaricoTemperatura>(load).GetAlpha());
        break;
    case TipoElemento::CaricoPesoProprio:
        Add(list, As<CCaricoPesoProprio>(load).GetAcceleration());
        break;
    default:
        break;
    }
    return list;
}

std::unique_ptr<CCarico> MakeLoad(unsigned kindCode) {
    switch (kindCode) {
    case TipoElemento::CaricoNodale:
        return std::make_unique<CCaricoNodale>();
    case TipoElemento::CaricoSpostamento:
        return std::make_unique<CCaricoSpostamento>();
    case TipoElemento::CaricoUniforme:
        return std::make_unique<CCaricoUniforme>();
    case TipoElemento::CaricoTrapezoidale:
        return std::make_unique<CCaricoTrapezoidale>();
    case TipoElemento::CaricoConcentrato:
        return std::make_unique<CCaricoConcentrato>();
    case TipoElemento::CaricoTemperatura:
        return std::make_unique<CCaricoTemperatura>();
    case TipoElemento::CaricoPesoProprio:
        return std::make_unique<CCaricoPesoProprio>();
    default:
        return nullptr;
    }
}

} // namespace host
