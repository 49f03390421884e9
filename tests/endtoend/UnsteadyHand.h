#pragma once

#include <string>
#include <thread>

/// Moves the pointer by one pixel and back all the time, as the hand of a person
/// does. GNUstep needs that: its run loop may go to sleep over an event that has
/// been read from the connection already, until another one comes.
class UnsteadyHand {
 public:
  explicit UnsteadyHand(const std::string& displayName);

 private:
  /// Ends its loop, and is waited for, with this object.
  std::jthread mover;
};
