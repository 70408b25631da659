#include "contract/Contract.h"

#include "contract/AttributeContract.h"
#include "contract/HierarchyContract.h"
#include "contract/LogonContract.h"
#include "contract/MemberContract.h"
#include "contract/MemberListContract.h"
#include "contract/SecurityContract.h"
#include "contract/SessionContract.h"

#include <QTest>

namespace {

template <typename... Contracts>
int check(ClientUnderTest &client, int argc, char **argv)
{
    int failed = 0;
    const auto one = [&](QObject &&contract) {
        try {
            failed += QTest::qExec(&contract, argc, argv);
        } catch (const std::exception &) { // an operation failed that should not have; it is told
            ++failed;
        }
    };
    (one(Contracts(client)), ...);
    return failed;
}

} // namespace

int checkContract(ClientUnderTest &client, int argc, char **argv)
{
    return check<LogonContract, SessionContract, MemberContract, HierarchyContract,
                 MemberListContract, AttributeContract, SecurityContract>(client, argc, argv);
}
