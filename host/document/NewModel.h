// What models begin with: the empty one, the one of a new document, and the properties that both the new document and
// the example are made of.
#pragma once

#include "host/document/DocumentData.h"

class CMateriale;
class CSezione;
class CSpessore;

namespace host {

// One load case, in metres and kilonewtons.
DocumentData EmptyModel();
// The same with a concrete, a section of 30 by 30 cm and a thickness of 20 cm, so that what is drawn can be analysed.
DocumentData NewModel(DocumentUnits units = {});

// Properties of models in metres and kilonewtons; the model's. Young's modulus in kN/m^2, density in t/m^3, which is
// kN s^2/m^4, thermal expansion in 1/degree.
CMateriale* AppendMaterial(DocumentData& data, const char* name, double young, double poisson, double density,
                           double alpha);
CMateriale* AppendConcrete(DocumentData& data);                                              // C25/30
CSezione* AppendRectangle(DocumentData& data, const char* name, double base, double height); // m
CSpessore* AppendThickness(DocumentData& data, const char* name, double thickness);          // m

} // namespace host
