#include "numerics/operators/gauss_kronrod.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zephyl {

namespace {

constexpr int HALF = 30;               // nodes on each side of the centre
constexpr int GAUSS_PAIRS = HALF / 2;  // pairs of them that the Gauss rule has too

// Nodes from the centre outwards; those of odd index are also the nodes of the 30-point Gauss rule.
// clang-format off
constexpr double nodes[HALF + 1] = {
    0.0,
    0.051471842555317698, 0.10280693796673702, 0.15386991360858354, 0.20452511668230988, 0.25463692616788985,
    0.30407320227362505, 0.35270472553087812, 0.4004012548303944, 0.44703376953808915, 0.49248046786177857,
    0.53662414814201986, 0.57934523582636166, 0.62052618298924289, 0.66006106412662691, 0.69785049479331585,
    0.73379006245322675, 0.76777743210482619, 0.79972783582183904, 0.82956576238276836, 0.85720523354606115,
    0.88256053579205274, 0.90557330769990785, 0.92620004742927431, 0.94437444474856003, 0.96002186496830755,
    0.97311632250112623, 0.98366812327974718, 0.99163099687040457, 0.99689348407464951, 0.9994844100504906};
// clang-format on
constexpr double kronrod_weights[HALF + 1] = {
    0.051494729429451568,  0.051426128537459023, 0.051221547849258774, 0.05088179589874961,
    0.050405921402782349,  0.04979568342707421,  0.049055434555029781, 0.048185861757087133,
    0.047185546569299151,  0.04605923827100699,  0.044814800133162663, 0.043452539701356069,
    0.041969810215164244,  0.040374538951535956, 0.038678945624727595, 0.03688236465182123,
    0.034979338028060025,  0.032981447057483723, 0.030907257562387762, 0.028754048765041292,
    0.026509954882333101,  0.0241911620780806,   0.021828035821609193, 0.019414141193942382,
    0.016920889189053271,  0.014369729507045804, 0.011823015253496341, 0.0092732796595177639,
    0.0066307039159312926, 0.003890461127099884, 0.0013890136986770077};
// Of the nodes 1, 3, 5 and so on.
constexpr double gauss_weights[GAUSS_PAIRS] = {
    0.10285265289355884,  0.1017623897484055,   0.099593420586795267, 0.096368737174644253,
    0.092122522237786122, 0.086899787201082976, 0.080755895229420213, 0.073755974737705204,
    0.065974229882180491, 0.057493156217619065, 0.048402672830594053, 0.03879919256962705,
    0.028784707883323369, 0.018466468311090958, 0.007968192496166605};

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double least = std::numeric_limits<double>::min();

// The published order: the pairs of the Gauss rule from outside inwards, then the others.
constexpr int node_of_pair(int pair) {
  return pair < GAUSS_PAIRS ? HALF - 1 - 2 * pair : HALF - 2 * (pair - GAUSS_PAIRS);
}
constexpr int pair_of_node(int node) {
  return node % 2 == 1 ? (HALF - 1 - node) / 2 : GAUSS_PAIRS + (HALF - node) / 2;
}

}  // namespace

// The centre, then pairs left and right of it.
double TGaussKronrod::place_of(int index) const {
  const double distance = half_length_ * nodes[node_of_pair((index - 1) / 2)];
  return index % 2 == 1 ? centre_ - distance : centre_ + distance;
}

double TGaussKronrod::start(double a, double b) {
  centre_ = 0.5 * (a + b);
  half_length_ = 0.5 * (b - a);
  count_ = 0;
  return centre_;
}

bool TGaussKronrod::next(double sample, double& place) {
  samples_[count_++] = sample;
  if (count_ == POINTS) return false;
  place = place_of(count_);
  return true;
}

TRuleResult TGaussKronrod::result() const {
  double gauss = 0.0;
  double kronrod = kronrod_weights[0] * samples_[0];
  double magnitude = std::fabs(kronrod);
  for (int pair = 0; pair < HALF; ++pair) {
    const int node = node_of_pair(pair);
    const double left = left_sample(pair), right = right_sample(pair);
    if (pair < GAUSS_PAIRS) gauss += gauss_weights[node / 2] * (left + right);
    kronrod += kronrod_weights[node] * (left + right);
    magnitude += kronrod_weights[node] * (std::fabs(left) + std::fabs(right));
  }
  const double mean = 0.5 * kronrod;
  double deviation = kronrod_weights[0] * std::fabs(samples_[0] - mean);
  for (int node = HALF; node >= 1; --node) {
    const int pair = pair_of_node(node);
    deviation +=
        kronrod_weights[node] * (std::fabs(left_sample(pair) - mean) + std::fabs(right_sample(pair) - mean));
  }
  const double length = std::fabs(half_length_);
  TRuleResult rule{kronrod * half_length_, std::fabs((kronrod - gauss) * half_length_), magnitude * length,
                   deviation * length};
  if (rule.deviation != 0.0 && rule.error != 0.0)
    rule.error = rule.deviation * std::min(1.0, std::pow(200.0 * rule.error / rule.deviation, 1.5));
  if (rule.magnitude > least / (50.0 * epsilon))
    rule.error = std::max(epsilon * 50.0 * rule.magnitude, rule.error);
  return rule;
}

}  // namespace zephyl
