// State restorers.
#include "zebundo/StateRestorer.h"

namespace zebundo {

StateRestorer::StateRestorer() = default;

StateRestorer::~StateRestorer() = default;

void StateRestorer::MergeIn(boost::intrusive_ptr<StateRestorer> /*inOther*/) {}

}  // namespace zebundo
