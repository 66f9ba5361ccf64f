#include "platform/network_namespace.h"

#include <QApplication>

#include <cstdio>
#include <gtest/gtest.h>

/// For tests that need well-known ports: the network is theirs alone.
int main(int argc, char** argv) {
    if (!tarnwell::test::enterNetworkNamespace()) {
        std::puts("This system does not allow a network of one's own.");
        return tarnwell::test::kNoNamespace;
    }
    testing::InitGoogleTest(&argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
