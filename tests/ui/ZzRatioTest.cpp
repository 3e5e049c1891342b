#include "CostlyCards.h"
#include "CardTree.h"
#include "model/PlixJsonDataParse.h"
#include "support/PlixTest.h"
#include <ctime>
#include <iostream>
#include <map>
#include <algorithm>
namespace plix::test { namespace {
using Zz = PlixTest;
double cpu(){ timespec t; clock_gettime(CLOCK_THREAD_CPUTIME_ID,&t); return double(t.tv_sec)*1e6+double(t.tv_nsec)/1e3; }
double buildTime(const std::string& json, int& items){ double best=1e18; for(int r=0;r<3;++r){ auto* c=Plix_CreateController(); Plix_InitData(c,json); double a=cpu(); auto* root=Plix_CreateQGraphicsItem(c); best=std::min(best,cpu()-a); items=0; forEachItem(*root,[&](QGraphicsItem&){++items;}); delete root; Plix_Free(c);} return best; }
double flat(int items){ static std::map<int,double> known; auto& v=known[items]; if(v==0){ std::string s; for(int i=0;i<items-2;++i) s+=(i?",":"")+text("ab cd"); int n=0; v=buildTime(bubbleWithBody(box("vertical",s)),n); if(n!=items) std::cout<<"flat "<<n<<" "<<items<<"\n"; } return v; }
TEST_F(Zz, Ratio){
  std::vector<std::pair<double,std::string>> all;
  auto add=[&](const std::string& name,const std::string& json){ int n=0; double t=buildTime(json,n); all.emplace_back(t/flat(n), name+" items "+std::to_string(n)+" us "+std::to_string(t)); };
  const auto cards=costlyCards(); int k=0;
  for(const auto& c: cards) add(c.name,c.json(PlixJsonDataParse::kMaxNestedBoxes));
  for(const auto& c: cards) if(k++%31==0) add("large "+c.name,c.largestJson(PlixJsonDataParse::kMaxNestedBoxes));
  for(unsigned i=0;i<200;++i) add("random",randomCostlyCard(i).json(PlixJsonDataParse::kMaxNestedBoxes));
  std::sort(all.rbegin(),all.rend()); for(int i=0;i<8;++i) std::cout<<"ratio "<<all[size_t(i)].first<<" "<<all[size_t(i)].second<<"\n"; std::cout<<"cards "<<all.size()<<"\n";
}
TEST_F(Zz, Issue){ for(int depth: {14,20,24,28,32}){ std::string j=text("deep"); for(int i=0;i<depth;++i) j=box(i%2?"horizontal":"vertical", text("short")+","+j); auto* c=Plix_CreateController(); Plix_InitData(c,bubbleWithBody(j)); double a=cpu(); auto* root=Plix_CreateQGraphicsItem(c); std::cout<<"issue "<<depth<<" us "<<cpu()-a<<"\n"; delete root; Plix_Free(c);} ignoreLog(); }
}}
