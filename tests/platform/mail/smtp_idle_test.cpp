// SPDX-License-Identifier: GPL-3.0-or-later
// A program of its own, since it lasts longer than the half minute for which a connection is kept.
#include "platform/mail/smtp_fixture.h"

namespace smtp_idle_test {

using testing_support::ScriptedServer;

TEST(SmtpSession, ConnectionThatIsNotUsedIsClosedWithQuit) {
    // Whatever the first dialogue still waits for after the message is accepted can only come from the idle
    // client.
    ScriptedServer server({hello + message + QByteArrayList{"C: QUIT", "S: 221 bye"}, hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.turn(31000);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace smtp_idle_test
