// The design settings of a document. The dialogs of this library only carry the pointer so far.
#pragma once

class CQuovarProgetto {
  public:
    virtual ~CQuovarProgetto() = default;
};
