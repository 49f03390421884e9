#include "Src/HXUI/HXThread.h"

#include <atomic>
#include <cstddef>
#include <thread>

#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

/// Tells when it is released.
@interface ReleaseWitness : NSObject {
 @public
  std::atomic<int>* releases;
}
@end

@implementation ReleaseWitness
- (void)dealloc {
  ++*releases;
  [super dealloc];
}
@end

namespace {

/// What a thread and its creator share by design; outlives the thread's object.
struct Shared {
  std::atomic<bool> mayEnd{true};
  std::atomic<bool> ran{false};
  std::atomic<bool> onMainThread{true};
  std::atomic<bool> deleted{false};
  std::atomic<bool> ranBeforeDeletion{false};
  std::atomic<int> releases{0};
  std::atomic<int> releasesInDestructor{-1};
  std::atomic<int> releasesAtTheEnd{-1};
};

class TestThread : public HXThread {
 public:
  explicit TestThread(Shared& sharedState, HXObject* redrawnWidget = nullptr)
      : shared(sharedState), widget(redrawnWidget) {}
  ~TestThread() override {
    shared.ranBeforeDeletion = shared.ran.load();
    shared.releasesInDestructor = shared.releases.load();
    shared.deleted = true;
  }

  void Run() override {
    while (!shared.mayEnd) std::this_thread::yield();
    shared.onMainThread = [NSThread isMainThread] == YES;
    ReleaseWitness* witness = [[[ReleaseWitness alloc] init] autorelease];
    witness->releases = &shared.releases;
    if (widget != nullptr) widget->Redraw();
    shared.ran = true;
  }

 protected:
  Shared& shared;

 private:
  HXObject* widget;
};

class HXThreadTest : public ToolkitFixture {};

TEST_F(HXThreadTest, RunsElsewhereAndDeletesItselfAfterwards) {
  Shared shared;
  EXPECT_TRUE((new TestThread(shared))->Start());
  PumpUntil([&] { return shared.deleted.load(); }, "the thread to delete its object");
  EXPECT_TRUE(shared.ranBeforeDeletion);
  EXPECT_FALSE(shared.onMainThread);
}

TEST_F(HXThreadTest, HasAPoolThatIsDrainedAfterTheObjectIsGone) {
  Shared shared;
  (new TestThread(shared))->Start();
  PumpUntil([&] { return shared.releases.load() == 1; }, "the pool to be drained");
  EXPECT_TRUE(shared.deleted);
  EXPECT_EQ(shared.releasesInDestructor, 0);
}

/// A thread whose memory outlives it, so that `Join` may come at any time.
class JoinedThread : public TestThread {
 public:
  using TestThread::TestThread;
  static void* operator new(std::size_t, void* place) { return place; }
  static void operator delete(void*) {}
};

TEST_F(HXThreadTest, JoinWaitsForTheEnd) {
  alignas(JoinedThread) unsigned char memory[sizeof(JoinedThread)];
  Shared shared;
  shared.mayEnd = false;
  auto* thread = new (memory) JoinedThread(shared);
  ASSERT_TRUE(thread->Start());
  std::thread opener([&] { shared.mayEnd = true; });
  thread->Join();
  EXPECT_TRUE(shared.deleted);
  EXPECT_EQ(shared.releases, 1);
  opener.join();
}

/// Notes, when its thread ends, how many objects had been released by then.
struct EndOfThread {
  ~EndOfThread() {
    if (shared != nullptr) shared->releasesAtTheEnd = shared->releases.load();
  }
  Shared* shared = nullptr;
};

class NotingThread : public TestThread {
 public:
  using TestThread::TestThread;

  void Run() override {
    thread_local EndOfThread end;
    end.shared = &shared;
    TestThread::Run();
  }
};

TEST_F(HXThreadTest, ItsPoolIsDrainedBeforeTheThreadEnds) {
  Shared shared;
  (new NotingThread(shared))->Start();
  PumpUntil([&] { return shared.releasesAtTheEnd.load() >= 0; }, "the thread to end");
  EXPECT_EQ(shared.releasesAtTheEnd, 1);
}

TEST_F(HXThreadTest, ThreadsRunSideBySide) {
  Shared first;
  Shared second;
  first.mayEnd = false;
  second.mayEnd = false;
  (new TestThread(first))->Start();
  (new TestThread(second))->Start();
  second.mayEnd = true;
  PumpUntil([&] { return second.releases.load() == 1; }, "the second thread");
  EXPECT_FALSE(first.ran);
  first.mayEnd = true;
  PumpUntil([&] { return first.releases.load() == 1; }, "the first thread");
}

TEST_F(HXThreadTest, RedrawFromAThreadDrawsOnTheMainThread) {
  auto* panel = new RecordingPanel(window.get(), {0, 0}, {20, 20});
  bool drawnOnMainThread = true;
  panel->onDraw = [&] { drawnOnMainThread &= [NSThread isMainThread] == YES; };
  [window->GetNativeView() display];
  panel->draws = 0;
  Shared shared;
  (new TestThread(shared, panel))->Start();
  PumpUntil([&] { return panel->draws > 0 && shared.releases.load() == 1; }, "the drawing");
  EXPECT_TRUE(drawnOnMainThread);
}

TEST_F(HXThreadTest, WidgetMayGoWhileItsRedrawIsOnTheWay) {
  auto* panel = new RecordingPanel(window.get(), {0, 0}, {20, 20});
  Shared shared;
  ASSERT_TRUE((new TestThread(shared, panel))->Start());
  // The run loop stands still meanwhile.
  while (shared.releases == 0) std::this_thread::yield();
  delete panel;
  bool served = false;
  Later([&] { served = true; });
  PumpUntil([&] { return served; }, "the run loop");
  EXPECT_TRUE(window->GetChildren().empty());
}

}  // namespace
