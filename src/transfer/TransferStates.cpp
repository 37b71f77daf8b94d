#include "transfer/TransferStates.h"

#include <algorithm>
#include <array>

namespace {
struct StateText
{
    InetState state;
    QStringView text;
};

constexpr std::array stateTexts{
    StateText{InetState::Connecting, u"Connecting..."},
    StateText{InetState::Connected, u"Connected!"},
    StateText{InetState::Requesting, u"Requesting..."},
    StateText{InetState::ReceivingResponse, u"Receiving Response..."},
    StateText{InetState::Disconnecting, u"Disconnecting..."},
    StateText{InetState::Disconnected, u"Disconnected"},
    StateText{InetState::Error, u"Error! "}, // the blank belongs to it
    StateText{InetState::ResponseCompleted, u"Response Completed!"},
};
} // namespace

QString inetStateText(int state)
{
    const auto found = std::find_if(stateTexts.begin(), stateTexts.end(),
                                    [state](const StateText &row) { return int(row.state) == state; });
    return found == stateTexts.end() ? QString() : found->text.toString();
}
