#include "panels/condensateurs/E96.h"

#include "kit/Maths.h"

namespace ondelis {

std::string E96(Double code)
{
    if (code != Fix(code))
        return "";
    // clang-format off
    switch (CInt(code).value()) {
    case  1: return "100"; case  2: return "102"; case  3: return "105"; case  4: return "107"; case  5: return "110"; case  6: return "113";
    case  7: return "115"; case  8: return "118"; case  9: return "121"; case 10: return "124"; case 11: return "127"; case 12: return "130";
    case 13: return "133"; case 14: return "137"; case 15: return "140"; case 16: return "143"; case 17: return "147"; case 18: return "150";
    case 19: return "154"; case 20: return "158"; case 21: return "162"; case 22: return "165"; case 23: return "169"; case 24: return "174";
    case 25: return "178"; case 26: return "182"; case 27: return "187"; case 28: return "191"; case 29: return "196"; case 30: return "200";
    case 31: return "205"; case 32: return "210"; case 33: return "215"; case 34: return "221"; case 35: return "226"; case 36: return "232";
    case 37: return "237"; case 38: return "243"; case 39: return "249"; case 40: return "255"; case 41: return "261"; case 42: return "267";
    case 43: return "274"; case 44: return "280"; case 45: return "287"; case 46: return "294"; case 47: return "301"; case 48: return "309";
    case 49: return "316"; case 50: return "324"; case 51: return "332"; case 52: return "340"; case 53: return "348"; case 54: return "357";
    case 55: return "365"; case 56: return "374"; case 57: return "383"; case 58: return "392"; case 59: return "402"; case 60: return "412";
    case 61: return "422"; case 62: return "432"; case 63: return "442"; case 64: return "453"; case 65: return "464"; case 66: return "475";
    case 67: return "487"; case 68: return "499"; case 69: return "511"; case 70: return "523"; case 71: return "536"; case 72: return "549";
    case 73: return "562"; case 74: return "576"; case 75: return "590"; case 76: return "604"; case 77: return "619"; case 78: return "634";
    case 79: return "649"; case 80: return "665"; case 81: return "681"; case 82: return "698"; case 83: return "715"; case 84: return "732";
    case 85: return "750"; case 86: return "768"; case 87: return "787"; case 88: return "806"; case 89: return "825"; case 90: return "845";
    case 91: return "866"; case 92: return "887"; case 93: return "909"; case 94: return "931"; case 95: return "953"; case 96: return "976";
    default: return "";
    }
    // clang-format on
}

} // namespace ondelis
