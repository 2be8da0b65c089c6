// Every operation of the table against its scalar twin, over random pictures, selections and arguments.
#include "support/pictures.h"
#include "support/twins.h"

namespace velara {
namespace {

TEST(Operations, EveryRowHasATwin)
{
    for (const Operation& op : operations()) EXPECT_TRUE(twins().contains(op.name)) << op.name;
}

} // namespace
} // namespace velara
