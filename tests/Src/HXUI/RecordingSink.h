#pragma once

#include <functional>
#include <vector>

#include "Src/HXUI/HXEventSinkRecord.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

/// An event sink that writes down what passes by; registered by its constructor.
class RecordingSink : public RecordingOwner {
 public:
  RecordingSink() { AddEventSink(this); }

  void OnEventSink(HXEventSinkRecord& record) override {
    records.push_back(record);
    if (stop) record.pass = 0;
    // By value: the action may delete this sink.
    const std::function<void()> then = onEvent;
    if (then) then();
  }

  /// How many events of the kind have passed by.
  int Count(std::uint32_t kind) const {
    int count = 0;
    for (const HXEventSinkRecord& record : records) count += record.kind == kind ? 1 : 0;
    return count;
  }

  std::vector<HXEventSinkRecord> records;
  bool stop = false;
  std::function<void()> onEvent;
};
