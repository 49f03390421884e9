#pragma once

/// Owner of one open file descriptor, which it closes. Moves, never copies.
class HelperDescriptor {
 public:
  /// Owns nothing.
  HelperDescriptor() = default;
  /// Takes `descriptor` over; negative means nothing.
  explicit HelperDescriptor(int descriptor) : descriptor(descriptor) {}
  HelperDescriptor(HelperDescriptor&& other) noexcept : descriptor(other.Release()) {}
  HelperDescriptor& operator=(HelperDescriptor&& other) noexcept;
  HelperDescriptor(const HelperDescriptor&) = delete;
  HelperDescriptor& operator=(const HelperDescriptor&) = delete;
  ~HelperDescriptor() { Close(); }

  bool IsOpen() const { return descriptor >= 0; }
  /// The descriptor, still owned here, or -1.
  int Number() const { return descriptor; }
  /// Hands the descriptor to the caller, or -1.
  int Release();
  /// Closes it now. Nothing happens when nothing is owned.
  void Close();

  /// Closes every descriptor of the process from `first` on, owned or not.
  /// Async-signal-safe: meant for the time between fork and exec.
  static void CloseAllFrom(int first);

 private:
  int descriptor = -1;
};
