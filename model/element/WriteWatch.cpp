#include "model/element/WriteWatch.h"

std::vector<WriteWatch*> WriteWatch::s_watches;

WriteWatch::WriteWatch() {
    s_watches.push_back(this);
}

WriteWatch::~WriteWatch() {
    std::erase(s_watches, this);
}

void WriteWatch::Tell(CElemento& elemento) {
    for (WriteWatch* watch : s_watches)
        watch->BeforeWrite(elemento);
}
