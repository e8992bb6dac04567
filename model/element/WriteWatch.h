// Who keeps what objects were before they are written: the journal of a document. Commands tell it themselves; here it
// hears of what a dialog writes directly into an object.
#pragma once

#include <vector>

class CElemento;

class WriteWatch {
  public:
    // An object, of this document or of none, is about to be written; where a record that hangs on it is handed out
    // for writing, perhaps it only is read.
    virtual void BeforeWrite(CElemento& elemento) = 0;

    static bool Listening() { return !s_watches.empty(); }
    static void Tell(CElemento& elemento);

  protected:
    WriteWatch(); // hears from then on
    virtual ~WriteWatch();
    WriteWatch(const WriteWatch&) = delete;
    WriteWatch& operator=(const WriteWatch&) = delete;

  private:
    static std::vector<WriteWatch*> s_watches;
};
