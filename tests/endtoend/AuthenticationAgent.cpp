// Stands in for the window that asks an administrator for a password: serves a
// system bus as polkit's authentication agent of every process whose number comes
// through the pipe FOLDER/askers, and says so in FOLDER/ready. Each question is a
// line in FOLDER/questions. The first argument is what becomes of it:
//
//   grant    the right password        (this program has to be root for that)
//   fail     a wrong one
//   dismiss  the question is closed

#include <fcntl.h>
#include <poll.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace {

constexpr const char* kPolkit = "org.freedesktop.PolicyKit1";
constexpr const char* kAuthority = "/org/freedesktop/PolicyKit1/Authority";
constexpr const char* kAuthorityInterface = "org.freedesktop.PolicyKit1.Authority";
constexpr const char* kAgent = "/agent";
constexpr const char* kCancelled = "org.freedesktop.PolicyKit1.Error.Cancelled";
constexpr std::uint32_t kRoot = 0;

struct Agent {
  std::string answer;
  std::string folder;
  sd_bus* bus = nullptr;
};

bool Grant(const Agent& agent, const char* cookie) {
  return sd_bus_call_method(agent.bus, kPolkit, kAuthority, kAuthorityInterface,
                            "AuthenticationAgentResponse2", nullptr, nullptr, "us(sa{sv})", kRoot,
                            cookie, "unix-user", 1, "uid", "u", kRoot) >= 0;
}

int OnBeginAuthentication(sd_bus_message* message, void* data, sd_bus_error* error) {
  const Agent& agent = *static_cast<const Agent*>(data);
  const char* action = nullptr;
  const char* text = nullptr;
  const char* cookie = nullptr;
  if (sd_bus_message_read(message, "sss", &action, &text, nullptr) < 0 ||
      sd_bus_message_skip(message, "a{ss}") < 0 || sd_bus_message_read(message, "s", &cookie) < 0) {
    return -EINVAL;
  }
  std::ofstream(agent.folder + "/questions", std::ios::app) << action << ": " << text << "\n";
  if (agent.answer == "dismiss") return sd_bus_error_set(error, kCancelled, "It was closed.");
  if (agent.answer == "grant" && !Grant(agent, cookie)) return -EACCES;
  return sd_bus_reply_method_return(message, nullptr);
}

int OnCancelAuthentication(sd_bus_message* message, void*, sd_bus_error*) {
  return sd_bus_reply_method_return(message, nullptr);
}

const std::array<sd_bus_vtable, 4> kMethods = {
    {SD_BUS_VTABLE_START(0),
     SD_BUS_METHOD("BeginAuthentication", "sssa{ss}sa(sa{sv})", "", OnBeginAuthentication,
                   SD_BUS_VTABLE_UNPRIVILEGED),
     SD_BUS_METHOD("CancelAuthentication", "s", "", OnCancelAuthentication,
                   SD_BUS_VTABLE_UNPRIVILEGED),
     SD_BUS_VTABLE_END}};

/// When the process began, in the system's ticks: with its number, its identity.
std::uint64_t StartTimeOf(std::uint32_t process) {
  constexpr int kFieldsBetween = 19;
  std::ifstream stream("/proc/" + std::to_string(process) + "/stat");
  std::string text;
  std::getline(stream, text);
  std::istringstream rest(text.substr(text.rfind(')') + 1));
  std::string field;
  for (int i = 0; i < kFieldsBetween; ++i) rest >> field;
  std::uint64_t time = 0;
  rest >> time;
  return time;
}

bool Register(const Agent& agent, std::uint32_t process, std::int32_t user) {
  return sd_bus_call_method(agent.bus, kPolkit, kAuthority, kAuthorityInterface,
                            "RegisterAuthenticationAgent", nullptr, nullptr, "(sa{sv})ss",
                            "unix-process", 3, "pid", "u", process, "start-time", "t",
                            StartTimeOf(process), "uid", "i", user, "C", kAgent) >= 0;
}

/// One line "PROCESS USER" of the pipe.
bool ServeAsker(const Agent& agent, int askers, int ready) {
  std::array<char, 64> line{};
  if (read(askers, line.data(), line.size() - 1) <= 0) return false;
  std::istringstream words(line.data());
  std::uint32_t process = 0;
  std::int32_t user = 0;
  words >> process >> user;
  return Register(agent, process, user) && write(ready, "\n", 1) == 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  Agent agent{argv[1], argv[2]};
  // Opened both ways, a pipe never ends.
  const int askers = open((agent.folder + "/askers").c_str(), O_RDWR | O_CLOEXEC);
  const int ready = open((agent.folder + "/ready").c_str(), O_RDWR | O_CLOEXEC);
  if (askers < 0 || ready < 0 || sd_bus_open_system(&agent.bus) < 0 ||
      sd_bus_add_object_vtable(agent.bus, nullptr, kAgent,
                               "org.freedesktop.PolicyKit1.AuthenticationAgent", kMethods.data(),
                               &agent) < 0) {
    return 1;
  }
  while (true) {
    while (sd_bus_process(agent.bus, nullptr) > 0) {
    }
    std::array<pollfd, 2> entries{{{askers, POLLIN, 0}, {sd_bus_get_fd(agent.bus), POLLIN, 0}}};
    if (poll(entries.data(), entries.size(), -1) < 0) return 1;
    if ((entries[0].revents & POLLIN) != 0 && !ServeAsker(agent, askers, ready)) return 1;
  }
}
