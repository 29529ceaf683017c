// The glue kit: bound functions, callback forms, table fields, proxies, zebLogging, debugSupport.
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "xukernel/XuUniverse.h"
#include "zebcore/config/Localizer.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/debug/HostLog.h"
#include "zebcore/utility/RefCountedObject.h"
#include "zeblua/utility/src/LuaBindery.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/LuaException.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/LuaTableFields.h"
#include "zeblua/utility/src/RunNative.h"

namespace zu = zeblua::utility;

namespace {

class TestBindery : public zu::LuaBindery {
public:
    using LuaBindery::LuaBindery;
    int referenceFor(const std::string& name) const {
        const auto found = mBoundFunctions.find(name);
        return found == mBoundFunctions.end() ? LUA_NOREF : found->second;
    }
};

// The mixing class's Lua method, with the bindery as upvalue in place of a proxy.
int bindThroughUpvalue(lua_State* L) {
    auto* target = static_cast<zu::LuaBindery*>(lua_touserdata(L, lua_upvalueindex(1)));
    return zu::BindZebOperationOn(L, target);
}

// Counts its deaths, so a test sees each deletion and each final release.
class Probe : public zebcore::utility::RefCountedObject {
public:
    explicit Probe(int& deaths) : mDeaths(deaths) {}
    ~Probe() override { ++mDeaths; }

private:
    int& mDeaths;
};

// One proxy description per gc kind, all over Probe.
enum ProbeKind { kDeleted, kOwned, kCounted, kCleared, kLent };
constexpr const char* kProbeMetatables[] = {"glue.DeletedProbe", "glue.OwnedProbe",
                                            "glue.CountedProbe", "glue.ClearedProbe",
                                            "glue.LentProbe"};
constexpr const char* kProbeNames[] = {"DeletedProbe", "OwnedProbe", "CountedProbe", "ClearedProbe",
                                       "LentProbe"};
template <ProbeKind kKind> struct ProbeProxy {
    using Object = Probe;
    static constexpr const char* kMetatableName = kProbeMetatables[kKind];
    static constexpr const char* kDisplayName = kProbeNames[kKind];
};
using DeletedProbe = ProbeProxy<kDeleted>;
using OwnedProbe = ProbeProxy<kOwned>;
using CountedProbe = ProbeProxy<kCounted>;
using ClearedProbe = ProbeProxy<kCleared>;
using LentProbe = ProbeProxy<kLent>;

int testProbe(lua_State* L) {
    lua_pushboolean(L, zu::TestProxyPointer<Probe>(L, 1, DeletedProbe::kMetatableName) != nullptr);
    return 1;
}

int checkProbe(lua_State* L) {
    lua_pushboolean(L, zu::CheckProxyPointer<Probe>(L, 1, DeletedProbe::kMetatableName) != nullptr);
    return 1;
}

std::string pointerText(const void* pointer) {
    char text[64];
    std::snprintf(text, sizeof text, "%p", pointer);
    return text;
}

struct Captured {
    lua_State* state = nullptr;
    std::string code;
    size_t length = 0;
    std::string name;
    int calls = 0;
};
Captured sCaptured;

void recordCapture(lua_State* L, const char* code, size_t length, const char* name) {
    sCaptured.state = L;
    sCaptured.code.assign(code, length);
    sCaptured.length = length;
    sCaptured.name = name;
    ++sCaptured.calls;
}

// A class-form module per gc kind, as a proxy module registers itself; the opener every
// probe proxy names.
int openProbes(lua_State* L) {
    const lua_CFunction metamethods[][2] = {
        {zu::DeleteObjectGC<DeletedProbe>, zu::HeldObject2string<DeletedProbe>},
        {zu::DeleteIfOwnedGC<OwnedProbe>, zu::Block2string<OwnedProbe>},
        {zu::ReleaseReferenceGC<CountedProbe>, zu::HeldObject2string<CountedProbe>},
        {zu::ClearPointerGC<ClearedProbe>, zu::HeldObject2string<ClearedProbe>},
        {zu::NothingGC, zu::Block2string<LentProbe>},
    };
    for (int kind = kDeleted; kind <= kLent; ++kind) {
        const luaL_Reg methods[] = {{"__gc", metamethods[kind][0]},
                                    {"__tostring", metamethods[kind][1]},
                                    {nullptr, nullptr}};
        const luaL_Reg noFunctions[] = {{nullptr, nullptr}};
        zu::RegisterClassModule(L, kProbeMetatables[kind], methods, kProbeNames[kind], noFunctions);
        lua_pop(L, 2);
    }
    return 0;
}

}  // namespace

class GlueTest : public LuaTest {
protected:
    void installBind(const char* globalName, zu::LuaBindery* target) {
        lua_pushlightuserdata(L, target);
        lua_pushcclosure(L, bindThroughUpvalue, 1);
        lua_setglobal(L, globalName);
    }

    int registryType(int reference) {
        lua_rawgeti(L, LUA_REGISTRYINDEX, reference);
        const int type = lua_type(L, -1);
        lua_pop(L, 1);
        return type;
    }

    void registerProbeProxies() { openProbes(L); }

    void setGlobal(const char* name) { lua_setglobal(L, name); }
};

TEST_F(GlueTest, RebindingReleasesTheReplacedFunctionWhichIsNeverCalledAgain) {
    TestBindery bindery(L);
    installBind("bind", &bindery);
    runLua("first, second = 0, 0; weak = setmetatable({}, {__mode = 'v'})\n"
           "weak.first = function() first = first + 1 end\n"
           "bind(nil, 'op', weak.first)");
    const int firstReference = bindery.referenceFor("op");
    collectGarbage();
    EXPECT_EQ(luaValue("type(weak.first)"), "function");  // the registry alone keeps it

    runLua("bind(nil, 'op', function() second = second + 1 end)");
    EXPECT_NE(bindery.referenceFor("op"), firstReference);
    EXPECT_NE(registryType(firstReference), LUA_TFUNCTION);
    collectGarbage();
    EXPECT_EQ(luaValue("weak.first"), "nil");

    ASSERT_TRUE(bindery.pushBoundFxn("op"));
    zu::CallNotify(L, 0);
    EXPECT_EQ(luaValue("first .. ',' .. second"), "0,1");
    EXPECT_EQ(lua_gettop(L), 0);
}

TEST_F(GlueTest, BindChecksNameAndFunctionAndBindsTheLastArgument) {
    TestBindery bindery(L);
    installBind("bind", &bindery);
    installBind("bindNothing", nullptr);

    EXPECT_NE(luaError("bind(nil, {}, function() end)")
                  .find("bad argument #2 to 'bind' (string expected, got table)"),
              std::string::npos);
    EXPECT_NE(luaError("bind(nil, 'op', 42)")
                  .find("bad argument #3 to 'bind' (function expected, got number)"),
              std::string::npos);
    EXPECT_FALSE(bindery.pushBoundFxn("op"));

    // The reference goes to the value on top: a fourth argument is what gets bound.
    runLua("bind(nil, 'extra', function() end, 'last')");
    ASSERT_TRUE(bindery.pushBoundFxn("extra"));
    EXPECT_EQ(lua_type(L, -1), LUA_TSTRING);
    lua_settop(L, 0);

    // Lookups compare whole names.
    runLua("bind(nil, 'opName', function() end)");
    EXPECT_FALSE(bindery.pushBoundFxn("op"));
    EXPECT_FALSE(bindery.pushBoundFxn("opName2"));
    EXPECT_TRUE(bindery.pushBoundFxn("opName"));
    lua_settop(L, 0);

    // A null native object binds nothing and looks at nothing.
    EXPECT_EQ(resultCount("bindNothing(nil, {}, 5)"), 0);
}

// A bindery made on a coroutine still calls on the main thread: the coroutine may be
// suspended or gone by the time native code calls.
TEST_F(GlueTest, ABinderyMadeOnACoroutineCallsOnTheMainThread) {
    lua_State* co = lua_newthread(L);
    TestBindery bindery(co);
    lua_pop(L, 1);
    installBind("bind", &bindery);
    runLua("coroutine.wrap(function() bind(nil, 'tick', function() return coroutine.running() end) "
           "end)()");
    collectGarbage();  // the coroutines are gone
    ASSERT_TRUE(bindery.pushBoundFxn("tick"));
    EXPECT_EQ(lua_gettop(L), 1);
    ASSERT_EQ(lua_pcall(L, 0, 1, 0), 0);
    EXPECT_TRUE(lua_isnil(L, -1)) << "the call ran on a coroutine";
    lua_settop(L, 0);
}

TEST_F(GlueTest, PushBoundFxnOfAnUnboundNameLeavesTheStackUnchanged) {
    TestBindery bindery(L);
    lua_pushstring(L, "below");
    lua_pushinteger(L, 7);
    EXPECT_FALSE(bindery.pushBoundFxn("missing"));
    EXPECT_FALSE(bindery.pushBoundFxn(nullptr));
    EXPECT_EQ(lua_gettop(L), 2);
    EXPECT_EQ(lua_tointeger(L, -1), 7);
}

TEST_F(GlueTest, DestroyingTheBinderyReleasesEveryReference) {
    auto* bindery = new TestBindery(L);
    installBind("bind", bindery);
    // Held by locals until bound: a collection step may come between any two statements.
    runLua("weak = setmetatable({}, {__mode = 'v'})\n"
           "local a, b = function() end, function() end\n"
           "weak.a, weak.b = a, b\n"
           "bind(nil, 'a', a); bind(nil, 'b', b)");
    const int references[] = {bindery->referenceFor("a"), bindery->referenceFor("b")};
    collectGarbage();
    EXPECT_EQ(luaValue("type(weak.a) .. type(weak.b)"), "functionfunction");

    delete bindery;
    for (const int reference : references)
        EXPECT_NE(registryType(reference), LUA_TFUNCTION);
    collectGarbage();
    EXPECT_EQ(luaValue("tostring(weak.a) .. tostring(weak.b)"), "nilnil");
}

TEST_F(GlueTest, CallbackFormsAnswerAndLeaveTheStackAsDocumented) {
    enum Form { kNotify, kTruthyPop, kTruthyEmpty, kCheckedPop, kCheckedEmpty, kStrict };
    struct Case {
        Form form;
        const char* body;  // of function(arg)
        bool answer;
        int top;  // one sentinel stands below the call
    };
    const Case cases[] = {
        {kNotify, "error('boom')", false, 1},
        {kNotify, "return 1, 2", false, 1},
        {kTruthyPop, "return false", false, 1},
        {kTruthyPop, "return", false, 1},
        {kTruthyPop, "return 0", true, 1},
        {kTruthyPop, "return arg == 'arg'", true, 1},
        {kTruthyPop, "error('boom')", true, 1},  // the error message answers true
        {kTruthyEmpty, "error('boom')", true, 0},
        {kTruthyEmpty, "return nil", false, 0},
        {kCheckedPop, "error('boom')", false, 1},
        {kCheckedEmpty, "error('boom')", false, 0},
        {kCheckedPop, "return 'a', 'b', 'c'", true, 3},  // two results wanted, left on top
        {kStrict, "return true", true, 0},
        {kStrict, "return 1", false, 0},
        {kStrict, "return 'true'", false, 0},
        {kStrict, "return false", false, 0},
        {kStrict, "error('boom')", false, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string("form ") + std::to_string(c.form) + ": " + c.body);
        lua_settop(L, 0);
        lua_pushstring(L, "sentinel");
        const std::string code = std::string("return function(arg) ") + c.body + " end";
        ASSERT_EQ(luaL_dostring(L, code.c_str()), 0);
        lua_pushstring(L, "arg");
        bool answer = false;
        switch (c.form) {
        case kNotify:
            zu::CallNotify(L, 1);
            break;
        case kTruthyPop:
            answer = zu::CallTruthy(L, 1, zu::CallCleanup::kPopTop);
            break;
        case kTruthyEmpty:
            answer = zu::CallTruthy(L, 1, zu::CallCleanup::kEmptyFrame);
            break;
        case kCheckedPop:
            answer = zu::CallChecked(L, 1, 2, zu::CallCleanup::kPopTop);
            break;
        case kCheckedEmpty:
            answer = zu::CallChecked(L, 1, 2, zu::CallCleanup::kEmptyFrame);
            break;
        case kStrict:
            answer = zu::CallStrict(L, 1);
            break;
        }
        EXPECT_EQ(answer, c.answer);
        EXPECT_EQ(lua_gettop(L), c.top);
        if (c.top >= 1) {
            EXPECT_STREQ(lua_tostring(L, 1), "sentinel");
        }
        if (c.top == 3) {
            EXPECT_STREQ(lua_tostring(L, -1), "b");
        }
    }
}

TEST_F(GlueTest, PushLuaMethodCallsWithTheObjectFirstAndAMissingMethodFails) {
    runLua("box = {name = 'box'}; function box:describe(suffix) return self.name .. suffix end");
    lua_getglobal(L, "box");
    const int object = luaL_ref(L, LUA_REGISTRYINDEX);
    lua_pushinteger(L, 5);
    const int notAnObject = luaL_ref(L, LUA_REGISTRYINDEX);

    EXPECT_EQ(zu::PushLuaMethod(L, object, "describe"), 1);
    lua_pushstring(L, "!");
    ASSERT_TRUE(zu::CallChecked(L, 2, 1, zu::CallCleanup::kPopTop));
    EXPECT_STREQ(lua_tostring(L, -1), "box!");
    lua_settop(L, 0);

    zu::PushLuaMethod(L, object, "absent");
    EXPECT_FALSE(zu::CallChecked(L, 1, 0, zu::CallCleanup::kPopTop));
    zu::PushLuaMethod(L, notAnObject, "describe");
    EXPECT_FALSE(zu::CallChecked(L, 1, 0, zu::CallCleanup::kPopTop));
    EXPECT_EQ(lua_gettop(L), 0);
}

TEST_F(GlueTest, TableFieldHelpersKeepTheStackHeight) {
    ASSERT_EQ(luaL_dostring(L, "return {n = 12, s = '12', f = false, zero = 0, bytes = 'a\\0b',"
                               " num = 3, sub = {}}, 'above'"),
              0);
    ASSERT_EQ(lua_gettop(L), 2);
    const auto unchanged = [this] { EXPECT_EQ(lua_gettop(L), 2); };

    EXPECT_EQ(zu::GetIntegerField(L, 1, "n"), 12);
    unchanged();
    EXPECT_EQ(zu::GetIntegerField(L, 1, "s"), 12);
    unchanged();
    EXPECT_EQ(zu::GetIntegerField(L, 1, "missing"), 0);
    unchanged();
    EXPECT_EQ(zu::GetIntegerField(L, 1, "sub"), 0);
    unchanged();
    EXPECT_FALSE(zu::GetBoolField(L, 1, "missing"));
    unchanged();
    EXPECT_FALSE(zu::GetBoolField(L, 1, "f"));
    unchanged();
    EXPECT_TRUE(zu::GetBoolField(L, 1, "zero"));
    unchanged();
    EXPECT_EQ(zu::GetStringField(L, 1, "bytes"), std::string("a\0b", 3));
    unchanged();
    EXPECT_EQ(zu::GetStringField(L, 1, "num"), "3");
    unchanged();
    EXPECT_EQ(zu::GetStringField(L, 1, "missing"), "");
    unchanged();
    EXPECT_EQ(zu::GetStringField(L, 1, "sub"), "");
    unchanged();
    EXPECT_EQ(lua_type(L, 1), LUA_TTABLE);

    // A relative index names the table as it stands before the field is pushed.
    lua_pop(L, 1);
    EXPECT_EQ(zu::GetIntegerField(L, -1, "n"), 12);
    EXPECT_EQ(lua_gettop(L), 1);

    EXPECT_EQ(zu::GetIntegerField(L, -1, nullptr), 0);
    EXPECT_FALSE(zu::GetBoolField(L, -1, nullptr));
    EXPECT_EQ(zu::GetStringField(L, -1, nullptr), "");
    EXPECT_EQ(lua_gettop(L), 1);
    const auto& reports = zebcore::debug::RecordedAssertReports();
    ASSERT_EQ(reports.size(), 3u);
    for (const auto& report : reports)
        EXPECT_EQ(report.expression, "inFieldName != NULL");
}

// thrower(kind): C++ work under RunNative that holds a string and then throws, or not.
int throwingBinding(lua_State* L) {
    const char* kind = luaL_checkstring(L, 1);
    return zu::RunNative(L, "Thrower", [&] {
        const std::string held(100, 'x');  // LeakSanitizer sees it if a longjmp skips it
        if (std::strcmp(kind, "std") == 0) throw std::runtime_error("bad " + held.substr(0, 3));
        if (std::strcmp(kind, "long") == 0) throw std::length_error(std::string(1000, 'y'));
        if (std::strcmp(kind, "other") == 0) throw 7;
        lua_pushinteger(L, static_cast<lua_Integer>(held.size()));
        return 1;
    });
}

TEST_F(GlueTest, RunNativeRaisesWhatItsWorkThrowsOnceTheWorkHasUnwound) {
    lua_register(L, "thrower", throwingBinding);
    EXPECT_EQ(luaValue("thrower('none')"), "100");
    // Raised with luaL_error, so with the caller's position.
    EXPECT_EQ(luaError("thrower('std')"), "test:1: Thrower: bad xxx");
    EXPECT_EQ(luaError("thrower('other')"), "test:1: Thrower: unknown exception");
    // A long what() is cut to the buffer, terminator included.
    const std::string prefix = "Thrower: ";
    EXPECT_EQ(luaError("thrower('long')"),
              "test:1: " + prefix + std::string(zu::kNativeMessageSize - 1 - prefix.size(), 'y'));
    // The state goes on as after any Lua error, protected calls included.
    EXPECT_EQ(luaValue("select(2, pcall(thrower, 'std'))"), "Thrower: bad xxx");  // no position
    EXPECT_EQ(luaValue("thrower('none')"), "100");
}

TEST_F(GlueTest, LuaExceptionDefaultsToTheLocalizedUnknownMessage) {
    EXPECT_EQ(zu::LuaException().GetMessage(), "Unknown Lua Exception");
    zebcore::config::Localizer::Get()->SetLanguage("de");
    EXPECT_EQ(zu::LuaException().GetMessage(), "Unbekannte Lua-Ausnahme");
    zebcore::config::Localizer::Get()->SetLanguage("en");
    const zu::LuaException given("script failed");
    EXPECT_EQ(given.GetMessage(), "script failed");
    EXPECT_STREQ(given.what(), "script failed");
}

TEST_F(GlueTest, DoLogMessageHandsTheLastArgumentToTheSink) {
    std::vector<zebcore::UTF16String> seen;
    const auto previous = zebcore::debug::SetLogSink(
        [&seen](const zebcore::UTF16String& message) { seen.push_back(message); });
    zebcore::debug::ClearRecordedLogMessages();
    runLua("require 'zeblua.zebLogging'");

    EXPECT_EQ(resultCount("zebLogging.doLogMessage('h\\195\\169llo')"), 0);
    runLua("zebLogging.doLogMessage('first', 'second')");
    runLua("zebLogging.doLogMessage(42)");
    EXPECT_NE(luaError("zebLogging.doLogMessage({})")
                  .find("bad argument #-1 to 'doLogMessage' (string expected, got table)"),
              std::string::npos);
    EXPECT_NE(luaError("zebLogging.doLogMessage()")
                  .find("bad argument #1 to 'doLogMessage' (string expected, got no value)"),
              std::string::npos);
    const std::vector<zebcore::UTF16String> expected = {u"h\u00e9llo", u"second", u"42"};
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(zebcore::debug::RecordedLogMessages(), expected);

    // A throwing sink costs the message, never the script.
    zebcore::debug::SetLogSink([](const zebcore::UTF16String&) { throw 1; });
    runLua("zebLogging.doLogMessage('lost')");
    // The record keeps only the latest messages.
    runLua("for i = 1, 300 do zebLogging.doLogMessage('m' .. i) end");
    const auto& recorded = zebcore::debug::RecordedLogMessages();
    ASSERT_EQ(recorded.size(), zebcore::debug::kRecordedLogLimit);
    EXPECT_EQ(recorded.back(), u"m300");
    zebcore::debug::SetLogSink(previous);
}

TEST_F(GlueTest, CaptureCodeIgnoresItsArgumentsUntilAHookIsInstalled) {
    runLua("require 'zeblua.debugSupport'");
    runLua("debugSupport.captureCode(); debugSupport.captureCode({}, 5)");

    int hostWord = 0;
    XuLuaCaptureHook hook{nullptr, nullptr};
    XuLuaState_setCaptureHook(L, &hook);
    runLua("debugSupport.captureCode({}, 5)");  // both words null: still no hook

    hook.context = &hostWord;  // only the second word: arguments checked, nothing called
    EXPECT_NE(luaError("debugSupport.captureCode({}, 'n')")
                  .find("bad argument #1 to 'captureCode' (string expected, got table)"),
              std::string::npos);
    sCaptured = Captured();
    runLua("debugSupport.captureCode('x', 'n')");
    EXPECT_EQ(sCaptured.calls, 0);

    hook.capture = recordCapture;
    runLua("debugSupport.captureCode('a\\0b = 1', 'chunk')");
    EXPECT_EQ(sCaptured.calls, 1);
    EXPECT_EQ(sCaptured.state, L);
    EXPECT_EQ(sCaptured.code, std::string("a\0b = 1", 7));
    EXPECT_EQ(sCaptured.length, 7u);
    EXPECT_EQ(sCaptured.name, "chunk");
    EXPECT_NE(luaError("debugSupport.captureCode('x')")
                  .find("bad argument #2 to 'captureCode' (string expected, got no value)"),
              std::string::npos);

    // Threads of the state share its universe, and the hook sees the calling thread.
    runLua("coroutine.wrap(function() debugSupport.captureCode('c', 'co') end)()");
    EXPECT_EQ(sCaptured.calls, 2);
    EXPECT_NE(sCaptured.state, L);
    EXPECT_EQ(sCaptured.name, "co");
    XuLuaState_setCaptureHook(L, nullptr);
}

TEST_F(GlueTest, CoverageSupportCountsLinesOnlyWhileStarted) {
    runLua("require 'zeblua.debugSupport'; first = debugSupport.coverageSupport\n"
           "package.loaded['zeblua.debugSupport'] = nil; require 'zeblua.debugSupport'");
    EXPECT_EQ(luaValue("first == debugSupport.coverageSupport"), "true");

    runLua("local coverage = debugSupport.coverageSupport\n"  // line 1
           "coverage.start()\n"
           "local x = 0\n"
           "for i = 1, 3 do\n"
           "  x = x + i\n"  // line 5
           "end\n"
           "coverage.stop()\n"
           "x = x + 1\n");
    EXPECT_EQ(luaValue("debugSupport.coverageSupport.hits['=test'][3]"), "1");
    EXPECT_EQ(luaValue("debugSupport.coverageSupport.hits['=test'][5]"), "3");
    EXPECT_EQ(luaValue("debugSupport.coverageSupport.hits['=test'][8]"), "nil");
}

TEST_F(GlueTest, EachGcKindEndsItsObjectAsItSays) {
    registerProbeProxies();
    int deaths = 0;
    const auto dropAll = [this] {
        runLua("p = nil");
        collectGarbage();
    };

    // Sole owner: deleted once, whether by an explicit __gc, a second one, or collection.
    zu::PushPointerProxy(L, new Probe(deaths), DeletedProbe::kMetatableName, openProbes);
    setGlobal("p");
    runLua("p:__gc(); p:__gc()");
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(luaValue("tostring(p)"), "DeletedProbe(" + pointerText(nullptr) + ")");
    dropAll();
    EXPECT_EQ(deaths, 1);

    // Owner flag: an owned object dies with its proxy, a lent one does not.
    Probe* lent = new Probe(deaths);
    zu::PushOwnedPointerProxy(L, new Probe(deaths), true, OwnedProbe::kMetatableName, openProbes);
    setGlobal("p");
    zu::PushOwnedPointerProxy(L, lent, false, OwnedProbe::kMetatableName, openProbes);
    setGlobal("q");
    runLua("q = nil");
    dropAll();
    EXPECT_EQ(deaths, 2);
    delete lent;
    EXPECT_EQ(deaths, 3);

    // Counted: the proxy's one reference is dropped once.
    boost::intrusive_ptr<Probe> held(new Probe(deaths));
    zu::PushCountedProxy(L, held.get(), CountedProbe::kMetatableName, openProbes);
    setGlobal("p");
    EXPECT_EQ(held->GetReferenceCount(), 2);
    runLua("p:__gc()");
    EXPECT_EQ(held->GetReferenceCount(), 1);
    dropAll();
    EXPECT_EQ(held->GetReferenceCount(), 1);
    held.reset();
    EXPECT_EQ(deaths, 4);
    zu::PushCountedProxy(L, new Probe(deaths), CountedProbe::kMetatableName, openProbes);
    setGlobal("p");
    dropAll();
    EXPECT_EQ(deaths, 5);

    // The toolkit's object: the proxy forgets it; an owning-nothing proxy does nothing.
    Probe toolkitOwned(deaths);
    zu::PushPointerProxy(L, &toolkitOwned, ClearedProbe::kMetatableName, openProbes);
    setGlobal("p");
    EXPECT_EQ(luaValue("tostring(p)"), "ClearedProbe(" + pointerText(&toolkitOwned) + ")");
    runLua("p:__gc()");
    EXPECT_EQ(luaValue("tostring(p)"), "ClearedProbe(" + pointerText(nullptr) + ")");
    zu::PushPointerProxy(L, &toolkitOwned, LentProbe::kMetatableName, openProbes);
    setGlobal("q");
    runLua("q = nil");
    dropAll();
    EXPECT_EQ(deaths, 5);

    // A __gc that finds a null pointer does nothing.
    zu::PushPointerProxy<Probe>(L, nullptr, DeletedProbe::kMetatableName, openProbes);
    setGlobal("a");
    zu::PushOwnedPointerProxy<Probe>(L, nullptr, true, OwnedProbe::kMetatableName, openProbes);
    setGlobal("b");
    zu::PushCountedProxy<Probe>(L, nullptr, CountedProbe::kMetatableName, openProbes);
    setGlobal("c");
    runLua("a:__gc(); b:__gc(); c:__gc(); a, b, c = nil, nil, nil");
    collectGarbage();
    EXPECT_EQ(deaths, 5);
}

// A check remembers the metatable it matched, per state: a proxy made before its module
// opened opens it, a look-alike metatable never passes, and another state is not fooled.
TEST_F(GlueTest, ProxyChecksRememberOnlyTheRegisteredMetatable) {
    lua_register(L, "checkProbe", checkProbe);
    int deaths = 0;
    Probe probe(deaths);
    zu::PushPointerProxy(L, new Probe(deaths), DeletedProbe::kMetatableName, openProbes);
    setGlobal("early");
    const char* const kRefused = "(glue.DeletedProbe expected, got userdata)";
    EXPECT_EQ(luaValue("checkProbe(early)"), "true");
    EXPECT_EQ(luaValue("type(OwnedProbe)"), "table");  // the whole module, as require does

    zu::PushPointerProxy(L, new Probe(deaths), DeletedProbe::kMetatableName, openProbes);
    setGlobal("p");
    runLua("lookalike = newproxy(true)\n"
           "for k, v in pairs(getmetatable(p)) do\n"
           "  if k ~= '__gc' then getmetatable(lookalike)[k] = v end\n"
           "end");
    for (int round = 0; round < 2; ++round) {  // before and after the first match
        EXPECT_NE(luaError("checkProbe(lookalike)").find(kRefused), std::string::npos) << round;
        EXPECT_EQ(luaValue("checkProbe(p)"), "true") << round;
    }

    lua_State* other = luaL_newstate();
    ASSERT_NE(other, nullptr);
    luaL_newmetatable(other, DeletedProbe::kMetatableName);
    lua_pop(other, 1);
    zu::PushPointerProxy(other, &probe, DeletedProbe::kMetatableName, openProbes);
    EXPECT_EQ(zu::TestProxyPointer<Probe>(other, 1, DeletedProbe::kMetatableName), &probe);
    lua_newuserdata(other, sizeof(void*));
    lua_pushcfunction(other, [](lua_State* state) {
        zu::CheckProxyBlock(state, 1, DeletedProbe::kMetatableName);
        return 0;
    });
    lua_insert(other, -2);
    EXPECT_NE(lua_pcall(other, 1, 0, 0), 0) << "a userdata without the metatable passed";
    lua_close(other);
    runLua("early, p = nil, nil");
    collectGarbage();
    EXPECT_EQ(deaths, 2);
}

TEST_F(GlueTest, ProxyAccessorsCheckTheMetatable) {
    registerProbeProxies();
    lua_register(L, "testProbe", testProbe);
    lua_register(L, "checkProbe", checkProbe);
    int deaths = 0;
    Probe probe(deaths);
    zu::PushPointerProxy(L, new Probe(deaths), DeletedProbe::kMetatableName, openProbes);
    setGlobal("p");
    void* lentBlock = zu::PushPointerProxy(L, &probe, LentProbe::kMetatableName, openProbes);
    setGlobal("other");

    EXPECT_EQ(luaValue("testProbe(p)"), "true");
    EXPECT_EQ(luaValue("testProbe(5)"), "false");  // no userdata: null, no error
    EXPECT_EQ(luaValue("checkProbe(p)"), "true");
    EXPECT_NE(luaError("testProbe(other)").find("(glue.DeletedProbe expected, got userdata)"),
              std::string::npos);
    EXPECT_NE(luaError("checkProbe(5)")
                  .find("bad argument #1 to 'checkProbe' (glue.DeletedProbe expected, got number)"),
              std::string::npos);
    EXPECT_NE(luaError("p.__gc(other)").find("glue.DeletedProbe expected"), std::string::npos);
    EXPECT_EQ(luaValue("tostring(other)"), "LentProbe(" + pointerText(lentBlock) + ")");
    runLua("p = nil");
    collectGarbage();
    EXPECT_EQ(deaths, 1);
}
